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
    if (const auto failed = m_failed.find(source); failed != m_failed.end()) {
        return failed->second;
    }
    if (m_pictures.size() >= mostPictures) {
        m_pictures.clear();
    }
    try {
        return m_pictures[key] = {m_compiler.picture(source, color, dpi), dpi, {}};
    } catch (const LatexError& error) {
        const QString text = QString::fromStdString(error.what());
        if (std::ranges::none_of(m_failed, [&](const auto& each) { return each.second.error == text; })) {
            m_tell(text);
        }
        if (m_failed.size() >= mostPictures) {
            m_failed.clear();
        }
        return m_failed[source] = {{}, dpi, text};
    }
}

} // namespace vantrix::view
