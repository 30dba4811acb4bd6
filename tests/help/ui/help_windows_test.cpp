#include "app/app.h"
#include "core/paths.h"
#include "editor/ui/finestra.h"
#include "help/istruzioni.h"
#include "help/ui/fin_aiuto.h"
#include "help/ui/finestrainfo.h"
#include "support/ui_fixture.h"

#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QUrl>

using namespace lumetra;
using namespace Qt::StringLiterals;

namespace {

class MailCatcher : public QObject {
    Q_OBJECT
public slots:
    void open(const QUrl &url) { urls << url; }

public:
    QList<QUrl> urls;
};

class HelpWindows : public test::UiTest {
protected:
    void SetUp() override
    {
        UiTest::SetUp();
        QDir(dir.path()).mkdir(u"bin"_s);
        QDir(dir.path()).mkdir(u"Resources"_s);
        setExecutableFolder(folderPath(u"bin"_s));
        x_istruzioni() = {};
    }
    void TearDown() override
    {
        setExecutableFolder(dir.path());
        x_istruzioni() = {};
        UiTest::TearDown();
    }
    // Opens the help window modally; inspect runs while it is open, then it is closed.
    void showHelp(const std::function<void(fin_aiuto &)> &inspect)
    {
        bool seen = false;
        onNextModal([&](QWidget *modal) {
            auto *help = qobject_cast<fin_aiuto *>(modal);
            ASSERT_NE(help, nullptr);
            seen = true;
            inspect(*help);
            help->close();
        });
        App::instance()->AiutoMostraaiuto_Action();
        EXPECT_TRUE(seen);
        settle();
        EXPECT_FALSE(fin_aiuto::exists());
    }
};

} // namespace

TEST_F(HelpWindows, ManualShownStyledParsedAtEachOpeningClosingShowsTheMainWindow)
{
    writeFile(u"Resources/istruzioni.rtf"_s,
              "{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0\\fnil Arial;}}\n"
              "\\qc{\\f0\\b\\fs40 Titolo}\\par\n\\ql Citt\\'e0 e {\\i corsivo}.\\par\n}");
    App::instance()->mainWindow().hide();
    showHelp([](fin_aiuto &help) {
        const QTextBlock title = help.EditF->document()->firstBlock();
        EXPECT_EQ(title.blockFormat().alignment(), Qt::AlignHCenter);
        EXPECT_EQ(title.begin().fragment().charFormat().fontWeight(), QFont::Bold);
        EXPECT_EQ(title.begin().fragment().charFormat().intProperty(QTextFormat::FontPixelSize), 20);
        EXPECT_EQ(title.next().blockFormat().alignment(), Qt::AlignLeft);
        help.EditF->moveCursor(QTextCursor::End);
        QTest::keyClicks(help.EditF, u"appunto"_s);
        EXPECT_EQ(help.EditF->toPlainText(), u"Titolo\nCittà e corsivo.\nappunto"_s);
    });
    EXPECT_TRUE(finestra::instance().isVisible());
    // The file is read once a run, the text parsed afresh: the note typed is gone.
    writeFile(u"Resources/istruzioni.rtf"_s, "{\\rtf1 Manuale nuovo}");
    showHelp([](fin_aiuto &help) { EXPECT_EQ(help.EditF->toPlainText(), u"Titolo\nCittà e corsivo.\n"_s); });
}

TEST_F(HelpWindows, InformationBoxLinkAndClose)
{
    MailCatcher mail;
    QDesktopServices::setUrlHandler(u"mailto"_s, &mail, "open");
    bool seen = false;
    onNextModal([&](QWidget *modal) {
        auto *info = qobject_cast<finestrainfo *>(modal);
        ASSERT_NE(info, nullptr);
        seen = true;
        QEvent enter(QEvent::Enter), leave(QEvent::Leave);
        QCoreApplication::sendEvent(info->StaticText3, &enter);
        EXPECT_TRUE(info->StaticText3->font().underline());
        QCoreApplication::sendEvent(info->StaticText3, &leave);
        EXPECT_FALSE(info->StaticText3->font().underline());
        QTest::mouseClick(info->StaticText3, Qt::LeftButton);
        QTest::mouseClick(info->PushButton1, Qt::LeftButton);
    });
    finestrainfo::instance().show();
    EXPECT_TRUE(finestrainfo::instance().isModal());
    settle(200);
    EXPECT_TRUE(seen);
    EXPECT_FALSE(finestrainfo::exists());
    EXPECT_EQ(mail.urls, QList<QUrl>{QUrl(u"mailto:info@lumetra.example"_s)});
    QDesktopServices::unsetUrlHandler(u"mailto"_s);
}

#include "help_windows_test.moc"
