#include "view/latex/LatexPictures.h"

#include <algorithm>

namespace vantrix::view {

namespace {

constexpr std::size_t mostPictures = 128;

/* Steps of two, so that zooming does not make a picture at each turn of the wheel. */
int resolution(double capitalPixels)
{
    constexpr int least = 75;
    constexpr int most = 2400;
    int dpi = least;
    while (dpi < most && dpi * LatexCompiler::capitalHeight < capitalPixels) {
        dpi *= 2;
    }
    return dpi;
}

} // namespace

const LatexPictures::Picture& LatexPictures::picture(const QString& source, const QColor& color, double capitalPixels)
{
    const int dpi = resolution(capitalPixels);
    const Key key(source, color.rgb(), dpi);
    if (const auto known = m_pictures.find(key); known != m_pictures.end()) {
        return known->second;
    }
    if (m_pictures.size() >= mostPictures) {
        m_pictures.clear();
    }
    Picture made{{}, dpi, {}};
    try {
        made.image = m_compiler.picture(source, color, dpi);
    } catch (const LatexError& error) {
        made.error = QString::fromStdString(error.what());
        const bool isKnown =
            std::ranges::any_of(m_pictures, [&](const auto& each) { return each.second.error == made.error; });
        if (!isKnown) {
            m_tell(made.error);
        }
    }
    return m_pictures[key] = std::move(made);
}

void LatexPictures::forgetErrors()
{
    std::erase_if(m_pictures, [](const auto& each) { return !each.second.error.isEmpty(); });
}

} // namespace vantrix::view
