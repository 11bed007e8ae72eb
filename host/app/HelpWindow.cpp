#include "app/HelpWindow.h"

#include "app/HelpDirectory.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QStyle>
#include <QTextBrowser>
#include <QToolBar>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

/* The style sheet of the pages; the browser does not follow their links to it. */
QString pageStyle()
{
    QFile file(helpDirectory() + u"/help.css"_s);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_browser(new QTextBrowser(this))
{
    setObjectName(u"helpWindow"_s);
    setWindowTitle(tr("Help"));
    setWindowFlag(Qt::Window);
    resize(760, 620);
    m_browser->setObjectName(u"helpBrowser"_s);
    m_browser->setOpenLinks(true);
    m_browser->document()->setDocumentMargin(16);
    m_browser->document()->setDefaultStyleSheet(pageStyle());
    setCentralWidget(m_browser);

    QToolBar* bar = addToolBar(tr("Help"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction* back =
        bar->addAction(style()->standardIcon(QStyle::SP_ArrowBack), tr("&Back"), m_browser, &QTextBrowser::backward);
    back->setShortcut(QKeySequence::Back);
    back->setEnabled(false);
    connect(m_browser, &QTextBrowser::backwardAvailable, back, &QAction::setEnabled);
    QAction* forward = bar->addAction(style()->standardIcon(QStyle::SP_ArrowForward), tr("&Forward"), m_browser,
                                      &QTextBrowser::forward);
    forward->setShortcut(QKeySequence::Forward);
    forward->setEnabled(false);
    connect(m_browser, &QTextBrowser::forwardAvailable, forward, &QAction::setEnabled);
    bar->addAction(style()->standardIcon(QStyle::SP_DirHomeIcon), tr("&Contents"), this,
                   [this] { showPage(contentsPage()); });
    connect(m_browser, &QTextBrowser::sourceChanged, this, [this] {
        const QString title = m_browser->documentTitle();
        setWindowTitle(title.isEmpty() ? tr("Help") : tr("%1 - Help").arg(title));
    });
}

QString HelpWindow::contentsPage()
{
    return u"index.html"_s;
}

bool HelpWindow::showPage(const QString& page)
{
    const QString name = page.section(u'#', 0, 0);
    const QFileInfo file(helpDirectory() + u'/' + name);
    if (name.isEmpty() || helpDirectory().isEmpty() || !file.isFile()) {
        return false;
    }
    m_browser->setSource(QUrl::fromLocalFile(file.absoluteFilePath()).resolved(QUrl(page)));
    show();
    raise();
    activateWindow();
    return true;
}

} // namespace vantrix::app
