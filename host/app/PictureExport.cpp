#include "app/PictureExport.h"

#include "app/GrayDevice.h"
#include "toolbox/StyleValue.h"
#include "view/PageRenderer.h"

#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <algorithm>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

const int defaultWidth = 1600;
const double metersPerInch = 0.0254;

QString suffixOf(const QString& path)
{
    return QFileInfo(path).suffix().toLower();
}

struct PrintStyle
{
    bool asImage = false;
    int dotsPerInch = 300;
    bool isMonochrome = false;

    static PrintStyle read()
    {
        const auto integer = [](const char* name, long value) {
            toolbox::StyleValue("Print", name).getValue(&value);
            return value;
        };
        return {integer("RenderType", PrintRenderType_Vector) == PrintRenderType_Image,
                static_cast<int>(integer("ImageResolution", 300)),
                integer("Color", Palette_Color) == Palette_Monochrome};
    }
};

bool isPdf(const QString& path)
{
    return suffixOf(path) == "pdf"_L1;
}

} // namespace

PictureExport::PictureExport(view::PageRenderer& renderer, const kernel::Page& page)
    : m_renderer(renderer)
    , m_page(page)
{}

QString PictureExport::problemWith(const QString& path)
{
    const QFileInfo file(path);
    const QFileInfo folder(file.absolutePath());
    const QString cannot = u"Cannot write \"%1\": %2"_s;
    if (file.isDir()) {
        return cannot.arg(path, u"it is a folder."_s);
    }
    if (!isPdf(path) && !QImageWriter::supportedImageFormats().contains(suffixOf(path).toLatin1())) {
        return cannot.arg(
            path, u"\"%1\" is no picture format; use a name that ends in .png, .jpg or .pdf."_s.arg(suffixOf(path)));
    }
    if (!folder.isDir()) {
        return cannot.arg(path, u"there is no folder \"%1\"."_s.arg(folder.filePath()));
    }
    if (!folder.isWritable() || (file.exists() && !file.isWritable())) {
        return cannot.arg(path, u"permission denied."_s);
    }
    return {};
}

QSize PictureExport::sizeAt(int dotsPerInch) const
{
    return (m_renderer.paperSize(m_page) * dotsPerInch).toSize();
}

QString PictureExport::write(const QString& path, QSize size) const
{
    QString problem = problemWith(path);
    if (!problem.isEmpty()) {
        return problem;
    }
    QSaveFile file(path);
    const auto failure = [&path](const QString& reason) { return u"Cannot write \"%1\": %2."_s.arg(path, reason); };
    if (!file.open(QIODevice::WriteOnly)) {
        return failure(file.errorString());
    }
    if (isPdf(path)) {
        paintPdf(file);
    } else {
        QImageWriter writer(&file, suffixOf(path).toLatin1());
        if (!writer.write(image(size))) {
            return failure(writer.errorString());
        }
    }
    return file.commit() ? QString() : failure(file.errorString());
}

QImage PictureExport::image(QSize size) const
{
    if (!size.isValid()) {
        return m_renderer.pageImage(m_page, defaultWidth);
    }
    const QSizeF paper = m_renderer.paperSize(m_page);
    const double inch = std::min(size.width() / paper.width(), size.height() / paper.height());
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(m_renderer.printedPaperColor(m_page));
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter.translate((size.width() - paper.width() * inch) / 2, (size.height() - paper.height() * inch) / 2);
    m_renderer.paintPage(painter, m_page, inch);
    painter.end();
    image.setDotsPerMeterX(qRound(inch / metersPerInch));
    image.setDotsPerMeterY(qRound(inch / metersPerInch));
    return image;
}

void PictureExport::paintPdf(QIODevice& device) const
{
    const PrintStyle print = PrintStyle::read();
    const QSizeF paper = m_renderer.paperSize(m_page);
    QPdfWriter writer(&device);
    writer.setPageSize(QPageSize(paper, QPageSize::Inch, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    writer.setResolution(print.dotsPerInch);
    QPainter painter(&writer);
    if (print.asImage) {
        const QImage image = m_renderer.pageImage(m_page, qRound(paper.width() * print.dotsPerInch));
        painter.drawImage(0, 0, print.isMonochrome ? image.convertToFormat(QImage::Format_Grayscale8) : image);
    } else if (print.isMonochrome) {
        GrayDevice gray(painter);
        QPainter inGray(&gray);
        m_renderer.paintPage(inGray, m_page, print.dotsPerInch);
    } else {
        m_renderer.paintPage(painter, m_page, print.dotsPerInch);
    }
}

} // namespace vantrix::app
