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
        QDir(dir.path()).mkdir(QStringLiteral("bin"));
        setIstruzioniExecutableFolder(folderPath(QStringLiteral("bin")));
        x_istruzioni() = {};
    }
    void TearDown() override
    {
        setIstruzioniExecutableFolder(QString());
        x_istruzioni() = {};
        UiTest::TearDown();
    }
    void writeManual(const QByteArray &rtf)
    {
        QDir(dir.path()).mkdir(QStringLiteral("Resources"));
        writeFile(QStringLiteral("Resources/istruzioni.rtf"), rtf);
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
        fin_aiuto::instance().ShowModal();
        EXPECT_TRUE(seen);
        settle();
        EXPECT_FALSE(fin_aiuto::exists());
    }
};

const QByteArray kManual = "{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0\\fnil Arial;}{\\f1\\fnil Times New Roman;}}"
                           "{\\colortbl;\\red0\\green0\\blue128;}\n"
                           "\\qc{\\f0\\b\\fs40\\cf1 Titolo}\\par\n"
                           "\\ql\\f1\\fs24 Citt\\'e0 e {\\i corsivo}.\\par\n}";

} // namespace

TEST_F(HelpWindows, HelpShowsTheManualStyled)
{
    writeManual(kManual);
    showHelp([](fin_aiuto &help) {
        QTextDocument *doc = help.EditF->document();
        EXPECT_EQ(doc->toPlainText(), QStringLiteral("Titolo\nCittà e corsivo.\n"));

        const QTextBlock title = doc->firstBlock();
        EXPECT_EQ(title.blockFormat().alignment(), Qt::AlignHCenter);
        const QTextCharFormat big = title.begin().fragment().charFormat();
        EXPECT_EQ(big.fontWeight(), QFont::Bold);
        EXPECT_EQ(big.intProperty(QTextFormat::FontPixelSize), 20);
        EXPECT_EQ(title.next().blockFormat().alignment(), Qt::AlignLeft);
    });
}

TEST_F(HelpWindows, ManualReadOnceParsedAtEachOpeningClosingShowsTheMainWindow)
{
    writeManual(kManual);
    finestra::instance().hide();
    showHelp([](fin_aiuto &help) {
        help.EditF->moveCursor(QTextCursor::End);
        QTest::keyClicks(help.EditF, QStringLiteral("appunto"));
        EXPECT_TRUE(help.EditF->toPlainText().contains(QStringLiteral("appunto")));
    });
    EXPECT_TRUE(finestra::instance().isVisible());
    writeManual("{\\rtf1 Manuale nuovo}");
    showHelp([](fin_aiuto &help) {
        EXPECT_EQ(help.EditF->toPlainText(), QStringLiteral("Titolo\nCittà e corsivo.\n"));
    });
}

TEST_F(HelpWindows, MissingOrMalformedManualGivesWhatCanBeRead)
{
    showHelp([](fin_aiuto &help) { EXPECT_EQ(help.EditF->toPlainText(), QString()); });
    x_istruzioni() = {};
    writeManual("{\\rtf1 Inizio{\\b grassetto");
    showHelp([](fin_aiuto &help) { EXPECT_EQ(help.EditF->toPlainText(), QStringLiteral("Iniziograssetto")); });
}

TEST_F(HelpWindows, InformationBoxLinkAndClose)
{
    MailCatcher mail;
    QDesktopServices::setUrlHandler(QStringLiteral("mailto"), &mail, "open");
    bool seen = false;
    onNextModal([&](QWidget *modal) {
        auto *info = qobject_cast<finestrainfo *>(modal);
        ASSERT_NE(info, nullptr);
        seen = true;
        QEvent enter(QEvent::Enter);
        QCoreApplication::sendEvent(info->StaticText3, &enter);
        EXPECT_TRUE(info->StaticText3->font().underline());
        QEvent leave(QEvent::Leave);
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
    EXPECT_EQ(mail.urls, QList<QUrl>{QUrl(QStringLiteral("mailto:info@lumetra.example"))});
    QDesktopServices::unsetUrlHandler(QStringLiteral("mailto"));
}

#include "help_windows_test.moc"
