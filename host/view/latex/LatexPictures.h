#pragma once

#include "view/latex/LatexCompiler.h"

#include <functional>
#include <tuple>

namespace vantrix::view {

/* Pictures of LaTeX texts, kept by source, colour and size; what cannot be made is kept by source. */
class LatexPictures
{
public:
    struct Picture
    {
        QImage image;
        int dpi = 0;
        QString error; /* where there is no image */
    };

    /* `tell` is called with each error once, when it is found. */
    explicit LatexPictures(std::function<void(const QString&)> tell)
        : m_tell(std::move(tell))
    {}

    /* A picture in which a capital letter has at least so many pixels, and not more than twice as many, within reason.
     * It is made now when it is not there, unless the source has failed before. */
    const Picture& picture(const QString& source, const QColor& color, double capitalPixels);

    /* What could not be made is tried again when it is asked for next. */
    void forgetErrors() { m_failed.clear(); }

private:
    using Key = std::tuple<QString, QRgb, int>;
    std::map<Key, Picture> m_pictures;
    std::map<QString, Picture> m_failed; /* by source */
    LatexCompiler m_compiler;
    std::function<void(const QString&)> m_tell;
};

} // namespace vantrix::view
