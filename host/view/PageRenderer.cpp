#include "view/PageRenderer.h"

#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/Frame.h"
#include "kernel/FrontEnd.h"
#include "kernel/Kernel.h"
#include "kernel/StyleStore.h"
#include "kernel/streamtrace/StreamtracePaths.h"
#include "view/FramePainter.h"
#include "view/FramePicture.h"
#include "view/PaperStyle.h"
#include "view/latex/LatexPictures.h"

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
        FramePicture onScreen;
        long paintCount = 0;
        bool isRead = false;
        unsigned long scopeStamp = 0;
        std::shared_ptr<const kernel::DataSet> dataSet;
    };

    explicit Impl(kernel::Kernel& owner)
        : kernel(owner)
    {}

    Entry& entry(const kernel::Frame& frame);
    void paint(QPainter& painter, const kernel::Frame& frame, const QRectF& rect, double inch, bool isForScreen);
    void paintAll(QPainter& painter, const kernel::Page& page, double inch, bool isForScreen);
    FramePainter* painterOf(long frameId) const;
    const RenderSettings& settings();
    void dropDeletedFrames();

    kernel::Kernel& kernel;
    OffscreenWindow window;
    LatexPictures latex{[this](const QString& error) { kernel.frontEnd().showStatus(error.toStdString()); }};
    std::map<long, std::unique_ptr<Entry>> entries;
    long droppedRenders = 0;
    bool isMoving = false;
    RenderSettings readSettings;
    std::optional<unsigned long> settingsStamp; /* of the process's style when they were read */
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
    slot->painter.setObjects(frame.geometries(), frame.texts());
    try {
        slot->painter.setStreamtraces(kernel.streamtracePaths().of(frame));
    } catch (const kernel::DataError& error) {
        kernel.frontEnd().showStatus(error.what());
    }
    return *slot;
}

const RenderSettings& PageRenderer::Impl::settings()
{
    const unsigned long stamp = kernel.style().scopeStamp(kernel::StyleStore::processScope);
    if (stamp != settingsStamp) {
        readSettings = RenderSettings::read(kernel.style());
        settingsStamp = stamp;
    }
    return readSettings;
}

FramePainter* PageRenderer::Impl::painterOf(long frameId) const
{
    const auto found = entries.find(frameId);
    return found != entries.end() ? &found->second->painter : nullptr;
}

void PageRenderer::Impl::paint(QPainter& painter, const kernel::Frame& frame, const QRectF& rect, double inch,
                               bool isForScreen)
{
    const bool isActive = kernel.document().activeFrame() == &frame;
    const PaintRequest request{settings(), isForScreen, isActive, isMoving && isActive, &latex};
    const TextEdges edges =
        !isForScreen ? TextEdges{} : TextEdges{settings().hasPlainTexts, settings().hasPlainSmallTexts};
    Entry& painted = entry(frame);
    const auto paintNow = [&](QPainter& onto) {
        ++painted.paintCount;
        painted.painter.paint(onto, inch, edges, rect, request);
    };
    if (isForScreen) {
        painted.onScreen.paint(painter, painted.painter.extent(rect),
                               {painted.painter.changeCount(), request.settings, request.isMoving,
                                painted.painter.mayApproximate(request)},
                               paintNow);
    } else {
        // What is where in the frame is known of the last painting: the next one on the screen has to tell it again.
        painted.onScreen.forget();
        paintNow(painter);
    }
}

void PageRenderer::Impl::paintAll(QPainter& painter, const kernel::Page& page, double inch, bool isForScreen)
{
    dropDeletedFrames();
    for (const auto& frame : page.frames) {
        const QRectF rect = readFrameRect(kernel.style(), frame->id());
        paint(painter, *frame, QRectF(rect.topLeft() * inch, rect.size() * inch), inch, isForScreen);
    }
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

const RenderSettings& PageRenderer::settings() const
{
    return m_impl->settings();
}

QRectF PageRenderer::frameRect(const kernel::Frame& frame) const
{
    return readFrameRect(m_impl->kernel.style(), frame.id());
}

void PageRenderer::paintPage(QPainter& painter, const kernel::Page& page, double inch)
{
    painter.fillRect(QRectF(QPointF(), paperSize(page) * inch), printedPaperColor(page));
    m_impl->paintAll(painter, page, inch, false);
}

void PageRenderer::paintFrames(QPainter& painter, const kernel::Page& page, double inch)
{
    m_impl->paintAll(painter, page, inch, true);
}

void PageRenderer::paintFrame(QPainter& painter, const kernel::Frame& frame, double inch)
{
    m_impl->paint(painter, frame, QRectF(QPointF(), frameRect(frame).size() * inch), inch, false);
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

void PageRenderer::forgetLatexErrors()
{
    m_impl->latex.forgetErrors();
    for (const auto& [id, entry] : m_impl->entries) {
        entry->onScreen.forget();
    }
}

void PageRenderer::setMoving(bool moving)
{
    m_impl->isMoving = moving;
}

bool PageRenderer::isApproximate(long frameId) const
{
    const FramePainter* painter = m_impl->painterOf(frameId);
    return painter && painter->isApproximate();
}

long PageRenderer::surfacePointCount(long frameId) const
{
    const FramePainter* painter = m_impl->painterOf(frameId);
    return painter ? painter->surfacePointCount() : 0;
}

long PageRenderer::geometryCount(long frameId) const
{
    const FramePainter* painter = m_impl->painterOf(frameId);
    return painter ? painter->geometryCount() : 0;
}

long PageRenderer::keptZoneCount() const
{
    long count = 0;
    for (const auto& [id, entry] : m_impl->entries) {
        count += entry->painter.keptZoneCount();
    }
    return count;
}

const FramePlot* PageRenderer::plot(long frameId) const
{
    const FramePainter* painter = m_impl->painterOf(frameId);
    return painter ? &painter->plot() : nullptr;
}

std::optional<std::array<double, 3>> PageRenderer::pick(long frameId, QPointF place) const
{
    FramePainter* painter = m_impl->painterOf(frameId);
    return painter ? painter->pick(place) : std::nullopt;
}

kernel::PickedObject PageRenderer::objectAt(long frameId, QPointF place, double reach) const
{
    const auto found = m_impl->entries.find(frameId);
    kernel::PickedObject object{.type = PickObject_Frame};
    if (found != m_impl->entries.end()) {
        object = found->second->painter.objectAt(place, reach);
    }
    object.frameId = frameId;
    return object;
}

QPolygonF PageRenderer::handles(const kernel::PickedObject& object) const
{
    const auto found = m_impl->entries.find(object.frameId);
    kernel::PickedObject inFrame = object;
    inFrame.frameId = 0;
    return found != m_impl->entries.end() ? found->second->painter.handles(inFrame) : QPolygonF();
}

long PageRenderer::paintCount(long frameId) const
{
    const auto found = m_impl->entries.find(frameId);
    return found != m_impl->entries.end() ? found->second->paintCount : 0;
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
