#include "app/HelpDirectory.h"

#include "AppTestSupport.h"

namespace vantrix::test {
namespace {

using namespace Qt::StringLiterals;

QString contentOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

TEST(HelpPagesTest, TheContentsListEveryPageAndNoLinkIsBroken)
{
    const QDir folder(app::helpDirectory());
    const QStringList pages = folder.entryList({u"*.html"_s});
    ASSERT_TRUE(pages.contains(u"index.html"_s));
    const QString contents = contentOf(folder.filePath(u"index.html"_s));
    static const QRegularExpression link(u"href=\"([^\"#:]+)[\"#]"_s);
    for (const QString& page : pages) {
        const bool isListed = page == "index.html"_L1 || contents.contains(u"href=\"%1\""_s.arg(page));
        EXPECT_TRUE(isListed) << page.toStdString() << " is not in index.html";
        auto matches = link.globalMatch(contentOf(folder.filePath(page)));
        while (matches.hasNext()) {
            const QString target = matches.next().captured(1);
            EXPECT_TRUE(folder.exists(target)) << page.toStdString() << " links to " << target.toStdString();
        }
    }
}

} // namespace
} // namespace vantrix::test
