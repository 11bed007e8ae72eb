#include "app/PictureExport.h"

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
const int pdfResolution = 300;

QString suffixOf(const QString& path)
{
    return QFileInfo(path).suffix().toLower();
}

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
    if (file.isDir())
        return cannot.arg(path, u"it is a folder."_s);
    if (!isPdf(path) && !QImageWriter::supportedImageFormats().contains(suffixOf(path).toLatin1()))
        return cannot.arg(
            path, u"\"%1\" is no picture format; use a name that ends in .png, .jpg or .pdf."_s.arg(suffixOf(path)));
    if (!folder.isDir())
        return cannot.arg(path, u"there is no folder \"%1\"."_s.arg(folder.filePath()));
    if (!folder.isWritable() || (file.exists() && !file.isWritable()))
        return cannot.arg(path, u"permission denied."_s);
    return {};
}

QString PictureExport::write(const QString& path, QSize size) const
{
    const QString problem = problemWith(path);
    if (!problem.isEmpty())
        return problem;
    QSaveFile file(path);
    const auto failure = [&path](const QString& reason) { return u"Cannot write \"%1\": %2."_s.arg(path, reason); };
    if (!file.open(QIODevice::WriteOnly))
        return failure(file.errorString());
    if (isPdf(path)) {
        paintPdf(file);
    } else {
        QImageWriter writer(&file, suffixOf(path).toLatin1());
        if (!writer.write(image(size)))
            return failure(writer.errorString());
    }
    return file.commit() ? QString() : failure(file.errorString());
}

QImage PictureExport::image(QSize size) const
{
    if (!size.isValid())
        return m_renderer.pageImage(m_page, defaultWidth);
    const QSizeF paper = m_renderer.paperSize(m_page);
    const double inch = std::min(size.width() / paper.width(), size.height() / paper.height());
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(m_renderer.paperColor(m_page));
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform);
    painter.translate((size.width() - paper.width() * inch) / 2, (size.height() - paper.height() * inch) / 2);
    m_renderer.paintPage(painter, m_page, inch);
    return image;
}

void PictureExport::paintPdf(QIODevice& device) const
{
    QPdfWriter writer(&device);
    writer.setPageSize(QPageSize(m_renderer.paperSize(m_page), QPageSize::Inch, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    writer.setResolution(pdfResolution);
    QPainter painter(&writer);
    m_renderer.paintPage(painter, m_page, pdfResolution);
}

} // namespace vantrix::app
