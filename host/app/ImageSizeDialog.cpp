#include "app/ImageSizeDialog.h"

#include "app/PictureExport.h"
#include "ui/IntegerSpinBox.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSettings>
#include <QSignalBlocker>
#include <QSpinBox>

#include <cmath>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

const auto densityKey = "Export/Density"_L1;
constexpr int leastDensity = 10;
constexpr int usualDensity = 150;

QSpinBox* newSpinBox(const QString& name, int least, int most, const QString& suffix, QWidget* parent)
{
    auto* box = new sdk::ui::common::IntegerSpinBox(parent);
    box->setObjectName(name);
    box->setRange(least, most);
    box->setSuffix(suffix);
    box->setKeyboardTracking(false);
    box->setAccelerated(true);
    return box;
}

} // namespace

ImageSizeDialog::ImageSizeDialog(QSizeF paper, QWidget* parent)
    : QDialog(parent)
    , m_paper(paper)
    , m_width(newSpinBox(u"imageWidth"_s, 1, PictureExport::mostPixels, tr(" pixels"), this))
    , m_height(newSpinBox(u"imageHeight"_s, 1, PictureExport::mostPixels, tr(" pixels"), this))
    , m_density(newSpinBox(u"imageDensity"_s, leastDensity, PictureExport::mostDensity, tr(" dots per inch"), this))
{
    setWindowTitle(tr("Export Image"));
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("&Width:"), m_width);
    layout->addRow(tr("&Height:"), m_height);
    layout->addRow(tr("&Density:"), m_density);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    layout->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ImageSizeDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ImageSizeDialog::reject);
    connect(m_width, &QSpinBox::valueChanged, this, &ImageSizeDialog::followWidth);
    connect(m_height, &QSpinBox::valueChanged, this, &ImageSizeDialog::followHeight);
    connect(m_density, &QSpinBox::valueChanged, this, &ImageSizeDialog::followDensity);
    showDensity(QSettings().value(densityKey, usualDensity).toInt(), nullptr);
}

QSize ImageSizeDialog::imageSize() const
{
    return {m_width->value(), m_height->value()};
}

void ImageSizeDialog::accept()
{
    QSettings().setValue(densityKey, m_density->value());
    QDialog::accept();
}

void ImageSizeDialog::followDensity(int dotsPerInch)
{
    showDensity(dotsPerInch, m_density);
}

void ImageSizeDialog::followWidth(int pixels)
{
    showDensity(pixels / m_paper.width(), m_width);
}

void ImageSizeDialog::followHeight(int pixels)
{
    showDensity(pixels / m_paper.height(), m_height);
}

void ImageSizeDialog::showDensity(double dotsPerInch, const QSpinBox* except)
{
    const auto set = [&](QSpinBox* box, double value) {
        if (box != except) {
            const QSignalBlocker blocker(box);
            box->setValue(static_cast<int>(std::lround(value)));
        }
    };
    set(m_width, dotsPerInch * m_paper.width());
    set(m_height, dotsPerInch * m_paper.height());
    set(m_density, dotsPerInch);
}

} // namespace vantrix::app
