#pragma once

#include <QImage>
#include <QSize>
#include <QString>

class QIODevice;

namespace vantrix::kernel {
struct Page;
}
namespace vantrix::view {
class PageRenderer;
}

namespace vantrix::app {

/* Saves a page as a picture: PDF, or an image format of Qt (PNG, JPEG, ...), as the file's suffix says. */
class PictureExport
{
public:
    static constexpr int mostPixels = 20000; /* along a side of an image */
    static constexpr int mostDensity = 2400; /* dots per inch */

    PictureExport(view::PageRenderer& renderer, const kernel::Page& page);

    /* What would keep a picture from being written to a path, in a sentence; empty when nothing would. */
    static QString problemWith(const QString& path);

    /* Pixels of an image with that many dots to an inch of the paper. */
    QSize sizeAt(int dotsPerInch) const;

    /*
     * Writes the picture; a file that is there already is replaced only by a whole new one. An image is `size` pixels
     * large, the paper in its middle as large as fits, and tells its density; without a valid size it is 1600 pixels
     * wide and as high as the paper asks. PDF has the paper's size and is made as the style values below "Print" say.
     * Returns a sentence that names the file and the cause when it failed, else nothing.
     */
    QString write(const QString& path, QSize size = {}) const;

private:
    QImage image(QSize size) const;
    void paintPdf(QIODevice& device) const;

    view::PageRenderer& m_renderer;
    const kernel::Page& m_page;
};

} // namespace vantrix::app
