#pragma once

#include <QDialog>
#include <QSizeF>

class QSpinBox;

namespace vantrix::app {

/* Asks how large an exported image is to be: width, height and density go together, as the paper's shape is kept. The
 * density is remembered for the next time. */
class ImageSizeDialog : public QDialog
{
    Q_OBJECT

public:
    /* `paper` is in inches. */
    ImageSizeDialog(QSizeF paper, QWidget* parent);

    /* In pixels. */
    QSize imageSize() const;

    void accept() override;

private:
    void followDensity(int dotsPerInch);
    void followWidth(int pixels);
    void followHeight(int pixels);
    void showDensity(double dotsPerInch, const QSpinBox* except);

    QSizeF m_paper;
    QSpinBox* m_width;
    QSpinBox* m_height;
    QSpinBox* m_density;
};

} // namespace vantrix::app
