#include "view/PageRenderer.h"

#include "kernel/Document.h"
#include "kernel/Frame.h"
#include "kernel/Kernel.h"
#include "kernel/StyleStore.h"
#include "view/Canvas.h"
#include "view/FramePainter.h"
#include "view/PaperStyle.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <map>

namespace vantrix::view {

struct PageRenderer::Impl
{
    struct Entry
    {
        explicit Entry(OffscreenWindow& window)
            : painter(window)
        {}
        FramePainter painter;
        bool isRead = false;
        unsigned long scopeStamp = 0;
        std::shared_ptr<const kernel::DataSet> dataSet;
    };

    explicit Impl(kernel::Kernel& owner)
        : kernel(owner)
    {}

    Entry& entry(const kernel::Frame& frame);
    void paint(QPainter& painter, const kernel::Frame& frame, const QRectF& rect, double inch);
    void dropDeletedFrames();

    kernel::Kernel& kernel;
    OffscreenWindow window;
    std::map<long, std::unique_ptr<Entry>> entries;
    long droppedRenders = 0;
    bool isCoarse = false;
};

PageRenderer::Impl::Entry& PageRenderer::Impl::entry(const kernel::Frame& frame)
{
    std::unique_ptr<Entry>& slot = entries[frame.id()];
    if (!slot) {
        slot = std::make_unique<Entry>(window);
    }
    const unsigned long stamp = kernel.style().scopeStamp(frame.id());
    if (!slot->isRead || slot->scopeStamp != stamp || slot->dataSet != frame.dataSet()) {
        slot->painter.show(PlotStyle::read(kernel.style(), frame), frame.dataSet());
        slot->isRead = true;
        slot->scopeStamp = stamp;
        slot->dataSet = frame.dataSet();
    }
    return *slot;
}

void PageRenderer::Impl::paint(QPainter& painter, const kernel::Frame& frame, const QRectF& rect, double inch)
{
    entry(frame).painter.paint(Canvas(painter, inch), rect, isCoarse);
}

void PageRenderer::Impl::dropDeletedFrames()
{
    std::erase_if(entries, [&](const auto& each) {
        if (kernel.document().frameById(each.first)) {
            return false;
        }
        droppedRenders += each.second->painter.renderCount();
        return true;
    });
}

PageRenderer::PageRenderer(kernel::Kernel& kernel)
    : m_impl(std::make_unique<Impl>(kernel))
{}

PageRenderer::~PageRenderer() = default;

QSizeF PageRenderer::paperSize(const kernel::Page& page) const
{
    return PaperStyle::read(m_impl->kernel.style(), page.id).size;
}

bool PageRenderer::isPaperShown(const kernel::Page& page) const
{
    return PaperStyle::read(m_impl->kernel.style(), page.id).isShown;
}

QColor PageRenderer::paperColor(const kernel::Page& page) const
{
    return PaperStyle::read(m_impl->kernel.style(), page.id).color;
}

QColor PageRenderer::printedPaperColor(const kernel::Page& page) const
{
    const PaperStyle paper = PaperStyle::read(m_impl->kernel.style(), page.id);
    return paper.isFilledInPrint ? paper.color : QColor(Qt::white);
}

QRectF PageRenderer::frameRect(const kernel::Frame& frame) const
{
    return readFrameRect(m_impl->kernel.style(), frame.id());
}

void PageRenderer::paintPage(QPainter& painter, const kernel::Page& page, double inch)
{
    painter.fillRect(QRectF(QPointF(), paperSize(page) * inch), printedPaperColor(page));
    paintFrames(painter, page, inch);
}

void PageRenderer::paintFrames(QPainter& painter, const kernel::Page& page, double inch)
{
    m_impl->dropDeletedFrames();
    for (const auto& frame : page.frames) {
        const QRectF rect = frameRect(*frame);
        m_impl->paint(painter, *frame, QRectF(rect.topLeft() * inch, rect.size() * inch), inch);
    }
}

void PageRenderer::paintFrame(QPainter& painter, const kernel::Frame& frame, double inch)
{
    m_impl->paint(painter, frame, QRectF(QPointF(), frameRect(frame).size() * inch), inch);
}

namespace {

QImage emptyImage(QSizeF inches, int width)
{
    const int pixels = std::max(1, width);
    const int height = std::max(1, int(std::lround(pixels * inches.height() / inches.width())));
    QImage image(pixels, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

} // namespace

QImage PageRenderer::pageImage(const kernel::Page& page, int width)
{
    QImage image = emptyImage(paperSize(page), width);
    QPainter painter(&image);
    paintPage(painter, page, image.width() / paperSize(page).width());
    return image;
}

QImage PageRenderer::frameImage(const kernel::Frame& frame, int width)
{
    const QSizeF size = frameRect(frame).size();
    QImage image = emptyImage(size, width);
    QPainter painter(&image);
    paintFrame(painter, frame, image.width() / size.width());
    return image;
}

void PageRenderer::setCoarse(bool coarse)
{
    m_impl->isCoarse = coarse;
}

const FramePlot* PageRenderer::plot(long frameId) const
{
    const auto found = m_impl->entries.find(frameId);
    return found != m_impl->entries.end() ? &found->second->painter.plot() : nullptr;
}

std::optional<std::array<double, 3>> PageRenderer::pick(long frameId, QPointF place) const
{
    const auto found = m_impl->entries.find(frameId);
    return found != m_impl->entries.end() ? found->second->painter.pick(place) : std::nullopt;
}

long PageRenderer::renderCount() const
{
    long count = m_impl->droppedRenders;
    for (const auto& [id, entry] : m_impl->entries) {
        count += entry->painter.renderCount();
    }
    return count;
}

} // namespace vantrix::view
