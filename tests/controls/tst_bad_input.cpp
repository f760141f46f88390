#include "TestCase.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelAccordionButton>
#include <ZelWidgets/ZelCollapsibleList>
#include <ZelWidgets/ZelDirEdit>
#include <ZelWidgets/ZelDontShowAgainDialog>
#include <ZelWidgets/ZelEditableLabel>
#include <ZelWidgets/ZelFileEdit>
#include <ZelWidgets/ZelFileNameDisplay>
#include <ZelWidgets/ZelFlipLabel>
#include <ZelWidgets/ZelIconLabel>
#include <ZelWidgets/ZelLinkLabel>
#include <ZelWidgets/ZelToolButton>
#include <ZelWidgets/ZelWordWrapLabel>

#include <QStringListModel>

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

/// Paints and measures a widget with its text.
bool isShownSensibly(QWidget &widget)
{
    widget.resize(200, 60);
    widget.grab();
    const QSize hint = widget.sizeHint().expandedTo(widget.minimumSizeHint());
    return hint.width() <= QWIDGETSIZE_MAX && hint.height() <= QWIDGETSIZE_MAX;
}

} // namespace

class BadInputTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void storedValuesOfAnotherTypeCountAsDefaults_data();
    void storedValuesOfAnotherTypeCountAsDefaults();
    void oddTextsAreShown_data();
    void oddTextsAreShown();
    void oddPathsAreKeptAsTheyAre_data();
    void oddPathsAreKeptAsTheyAre();
};

void BadInputTest::initTestCase()
{
    IconColorTheme::instance()->buildMap(
        text("[{\"icon_main\": \"#808080\", \"arrow_main\": \"#818181\"}]"));
}

void BadInputTest::storedValuesOfAnotherTypeCountAsDefaults_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("text") << QVariant(text("true"));
    QTest::newRow("text of a number") << QVariant(text("1"));
    QTest::newRow("empty text") << QVariant(QString());
    QTest::newRow("fraction") << QVariant(1.0);
    QTest::newRow("list") << QVariant(QStringList{text("a"), text("b")});
    QTest::newRow("bytes") << QVariant(QByteArray("\xff\0", 2));
    QTest::newRow("size") << QVariant(QSize(1, 1));
}

void BadInputTest::storedValuesOfAnotherTypeCountAsDefaults()
{
    QFETCH(QVariant, value);
    ZelSettings settings;
    const QString dialog = text("ZelDontShowAgainDialog.");
    for (const QString &key :
         {text("section"), text("label"), dialog + text("Name"), dialog + text("UserChoices.Name")})
        settings.setValue(key, value);
    ZelSettings(text("ZelCollapsibleListLights")).setValue(text("collapsedState"), value);

    for (const bool isOpen : {true, false}) {
        QCOMPARE(ZelAccordionButton(text("Title"), text("section"), isOpen).isOpen(), isOpen);
        settings.setValue(text("label"), value);
        QCOMPARE(ZelFlipLabel(text("Title"), text("label"), isOpen).isOpen(), isOpen);
    }
    QStringListModel model({text("one")});
    QCOMPARE(ZelCollapsibleList(text("Lights"), &model).state(), ZelCollapsibleList::Expanded);

    // A stored "don't show" without an answer: what a dialog without a stored state does.
    ZelDontShowAgainDialog shown(text("Name"));
    shown.setButtons(QMessageBox::Ok | QMessageBox::Cancel);
    QTimer::singleShot(0, &shown, &QDialog::reject);
    shown.exec();
    QVERIFY(shown.wasShown());
    settings.setValue(dialog + text("Name"), false);
    ZelDontShowAgainDialog unanswered(text("Name"));
    QCOMPARE(unanswered.exec(), -1);
}

void BadInputTest::oddTextsAreShown_data()
{
    QTest::addColumn<QString>("shown");
    QTest::newRow("broken markup") << text("<b><a href='x' <i>open</b <table><td></table>&nosuch;");
    QTest::newRow("endless link") << text("<a href='") + QString(5000, u'x');
    QTest::newRow("picture of nowhere") << text("<img src=':/nowhere.png'>");
    QTest::newRow("one word of a megabyte") << QString(1 << 20, u'w');
    QTest::newRow("thousands of paragraphs") << text("<p>ab</p>").repeated(5000);
    QTest::newRow("right to left") << QString::fromUtf8("שלום \u202e abc \u0627\u0644");
    QTest::newRow("combining") << QString(u'a') + QString(2000, QChar(0x301));
    QTest::newRow("half a pair") << QString(QChar(0xd800)) + text("a") + QChar(0xdc00);
    QTest::newRow("lines and zeros") << text("a\nb\r\nc") + QChar(0) + text("d\te");
}

void BadInputTest::oddTextsAreShown()
{
    QFETCH(QString, shown);
    ZelLabel elided(shown);
    elided.setElideMode(true);
    ZelLabel wrapped(shown);
    wrapped.enableCustomWordWrap(true);
    ZelLinkLabel links(static_cast<QWidget *>(nullptr));
    links.setText(shown);
    ZelWordWrapLabel wordWrap(shown);
    ZelIconLabel withIcon(QIcon(), shown);
    ZelFlipLabel flip(shown, true);
    ZelAccordionButton header(shown, QString(), true);
    ZelEditableLabel editable;
    editable.setText(shown);
    ZelToolButton button;
    button.setText(shown);
    button.setTextWidthIgnore(true);
    const std::initializer_list<QWidget *> widgets{
        &elided, &wrapped, &links, &wordWrap, &withIcon, &flip, &header, &editable, &button};
    for (QWidget *widget : widgets)
        QVERIFY2(isShownSensibly(*widget), widget->metaObject()->className());
    QCOMPARE(editable.getText(), shown);
    QCOMPARE(flip.text(), shown);
}

void BadInputTest::oddPathsAreKeptAsTheyAre_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("line feed") << text("/no/such/a\nb.png");
    QTest::newRow("parent") << text("/no/such/../../../a.png");
    QTest::newRow("long") << text("/") + QString(10000, u'a');
    QTest::newRow("deep") << text("/a").repeated(5000);
    QTest::newRow("markup") << text("/no/<b>bold</b>.png");
    QTest::newRow("not UTF-8") << QFile::decodeName("/no/\xff\xfe.png");
    QTest::newRow("folder") << QDir::tempPath() + text("/");
    QTest::newRow("zero") << text("/a") + QChar(0) + text("b");
}

void BadInputTest::oddPathsAreKeptAsTheyAre()
{
    QFETCH(QString, path);
    ZelFileNameDisplay display(path, ZelFileNameDisplay::Open);
    QVERIFY(isShownSensibly(display));
    QCOMPARE(display.filename(), path);
    ZelDirEdit folderEdit(path);
    QVERIFY(isShownSensibly(folderEdit));
    ZelFileEdit fileEdit(path);
    QVERIFY(isShownSensibly(fileEdit));
    for (const QLineEdit *edit :
         {static_cast<QLineEdit *>(&folderEdit), static_cast<QLineEdit *>(&fileEdit)})
        QCOMPARE(edit->text(), path);
}

ZEL_TEST_MAIN(BadInputTest)
#include "tst_bad_input.moc"
