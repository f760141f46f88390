#include "TestCase.h"
#include "UserInput.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelAspectRatioLabel>
#include <ZelWidgets/ZelEditableLabel>
#include <ZelWidgets/ZelFlipLabel>
#include <ZelWidgets/ZelIconLabel>
#include <ZelWidgets/ZelPixmapLabel>
#include <ZelWidgets/ZelSFixedLinkedLabel>
#include <ZelWidgets/ZelSvgLabel>
#include <ZelWidgets/ZelWordWrapLabel>

#include <QAccessible>
#include <QDrag>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QToolTip>
#include <QVBoxLayout>

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QString words(int count)
{
    return text("several words that wrap ").repeated(count);
}

QImage picture(QWidget &widget)
{
    return widget.grab().toImage();
}

QPixmap filled(const QSize &size, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

} // namespace

class TestLabels : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void clicksAreReported();
    void theToolTipHasTheWholeTextOnlyIfItIsElided();
    void awkwardTextsCanBeElidedAndWrapped();
    void wrappedTextGetsItsHeightAtEveryWidth_data();
    void wrappedTextGetsItsHeightAtEveryWidth();
    void linksHaveTheColourOfTheSheet();
    void aFixedLinkedLabelKeepsItsSize();
    void iconAndTextOfAnIconLabelAreOneToClick();
    void iconsFollowModeAndState();
    void picturesAreScaledAndPlaceholdersShared();
    void aPictureIsDraggedWithItsData();
    void aPictureKeepsItsAspectRatio();
    void theFlipLabelTellsPressesAndStates();
    void theFlipLabelStoresItsStateAtTheEnd();
    void anEditableLabelTakesOverOrKeepsItsText();
};

void TestLabels::initTestCase()
{
    IconColorTheme::instance()->buildMap(
        text("[{\"icon_main\": \"#808080\", \"arrow_main\": \"#818181\"}]"));
}

void TestLabels::clicksAreReported()
{
    ZelLabel label(text("label"));
    label.show();
    QSignalSpy click(&label, &ZelLabel::click);
    QSignalSpy right(&label, &ZelLabel::rightClick);
    QSignalSpy twice(&label, &ZelLabel::doubleClick);
    UserInput::press(&label, QPoint(2, 2));
    QCOMPARE(click.count(), 0);
    UserInput::release(&label, QPoint(2, 2));
    UserInput::press(&label, QPoint(2, 2), {}, Qt::RightButton);
    QCOMPARE(right.count(), 1);
    UserInput::release(&label, QPoint(2, 2), {}, Qt::RightButton);
    QTest::mouseDClick(&label, Qt::LeftButton);
    QTest::mouseDClick(&label, Qt::MiddleButton);
    QCOMPARE(twice.count(), 1);
    QCOMPARE(click.count(), 1);

    label.setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    UserInput::press(&label, QPoint(2, 2), {}, Qt::RightButton);
    QCOMPARE(right.count(), 1);
}

void TestLabels::theToolTipHasTheWholeTextOnlyIfItIsElided()
{
    ZelLabel label(text("a text of some length"));
    label.setElideMode(true);
    label.show();
    const auto askForToolTip = [&label] {
        QToolTip::hideText();
        QHelpEvent help(QEvent::ToolTip, QPoint(2, 2), label.mapToGlobal(QPoint(2, 2)));
        QCoreApplication::sendEvent(&label, &help);
        return QToolTip::text();
    };
    label.resize(400, 20);
    const QImage wide = picture(label);
    const QString none = askForToolTip();
    label.resize(60, 20);
    QCOMPARE(askForToolTip(), label.text());
    QVERIFY(none != label.text());
    // The end of the text isn't cut off but elided.
    QVERIFY(picture(label) != wide.copy(QRect(QPoint(), picture(label).size())));
    QToolTip::hideText();
}

void TestLabels::awkwardTextsCanBeElidedAndWrapped()
{
    const QString contents[] = {
        QString(1024 * 1024, u'm'), text("<b><table><a href='x<i>open</b></tab"),
        QString(200, QChar(0x05d0)), QString(u'e') + QString(500, QChar(0x0301)),
        QString(40, QChar(0xd83d))}; // half a pair
    for (const QString &content : contents) {
        ZelLabel elided(content);
        elided.setElideMode(true);
        elided.resize(80, 20);
        QVERIFY(!picture(elided).isNull());
        ZelWordWrapLabel wrapped(content);
        wrapped.resize(80, 20);
        QVERIFY(wrapped.sizeHint().width() <= 25);
        QVERIFY(wrapped.sizeHint().height() <= 1000);
    }
}

void TestLabels::wrappedTextGetsItsHeightAtEveryWidth_data()
{
    QTest::addColumn<QString>("content");
    QTest::newRow("plain") << words(6);
    QTest::newRow("rich") << text("<b>bold</b> ") + words(6);
}

void TestLabels::wrappedTextGetsItsHeightAtEveryWidth()
{
    QFETCH(QString, content);
    const bool isRich = content.startsWith(u'<');
    QWidget panel;
    auto *layout = new QVBoxLayout(&panel);
    auto *label = new ZelWordWrapLabel(content);
    layout->addWidget(label);
    layout->addStretch(1);
    panel.resize(600, 400);
    panel.show();
    const int line = label->fontMetrics().height();
    QTRY_VERIFY(label->width() > 500);
    QTRY_VERIFY(label->height() <= 3 * line);
    panel.resize(150, 400);
    // Rich text has the height of one line at any width.
    if (!isRich)
        QTRY_VERIFY(label->height() >= 5 * line);
    QCOMPARE(label->heightForWidth(30), label->heightForWidth(900));
    panel.resize(600, 400);
    QTRY_VERIFY(label->height() <= 3 * line);

    label->setText(text("ab"));
    QVERIFY(label->sizeHint().width() < 25);
    label->enableCustomWordWrap(false);
    QCOMPARE(label->sizeHint(), static_cast<QLabel *>(label)->QLabel::sizeHint());
}

void TestLabels::linksHaveTheColourOfTheSheet()
{
    ZelLinkLabel label;
    label.setStyleSheet(text("ZelLinkLabel { qproperty-linkColor: #12ab34; }"));
    label.setText(text("go <a  href='x'>here</a> or <a\nhref='y'>there</a>"));
    label.show();
    const QString styled = text("go <a style='color:%1;' href='x'>here</a> or "
                                "<a style='color:%1;' href='y'>there</a>");
    QTRY_COMPARE(label.text(), styled.arg(text("#12ab34")));
    label.setLinkColor(QColor(Qt::red));
    QCOMPARE(label.text(), styled.arg(text("#ff0000")));
    label.QLabel::setText(text("<a href='z'>z</a>"));
    picture(label);
    QCOMPARE(label.text(), text("<a style='color:#ff0000;' href='z'>z</a>"));
}

void TestLabels::aFixedLinkedLabelKeepsItsSize()
{
    const QSize size(70, 9);
    ZelSFixedLinkedLabel label(text("<a href='x'>a link that is much longer</a>"), size);
    label.show();
    QFont large = label.font();
    large.setPointSize(30);
    label.setFont(large);
    QCOMPARE(label.size(), size);
    QCOMPARE(label.minimumSize(), size);
    QSignalSpy activated(&label, &QLabel::linkActivated);
    label.setFont(QFont());
    QTest::mouseClick(&label, Qt::LeftButton, {}, QPoint(12, 4));
    QCOMPARE(activated.count(), 1);
}

void TestLabels::iconAndTextOfAnIconLabelAreOneToClick()
{
    ZelIconLabel label(QIcon(filled(QSize(32, 32), Qt::red)), text("text"));
    label.resize(200, 60);
    label.show();
    QSignalSpy click(&label, &ZelIconLabel::labelClicked);
    QSignalSpy right(&label, &ZelIconLabel::labelRightClicked);
    const QList<QLabel *> parts = label.findChildren<QLabel *>();
    QCOMPARE(parts.size(), 2);
    for (QLabel *part : parts) {
        QTest::mouseClick(part, Qt::LeftButton);
        QTest::mouseClick(part, Qt::RightButton);
    }
    QCOMPARE(click.count(), 2);
    QCOMPARE(right.count(), 2);
    QCOMPARE(picture(label).pixelColor(6, 6), QColor(Qt::red));
    label.setIcon(QIcon(filled(QSize(32, 32), Qt::green)));
    QCOMPARE(picture(label).pixelColor(6, 6), QColor(Qt::green));
}

void TestLabels::iconsFollowModeAndState()
{
    QIcon icon(filled(QSize(16, 16), Qt::red));
    icon.addPixmap(filled(QSize(16, 16), Qt::blue), QIcon::Disabled);
    icon.addPixmap(filled(QSize(16, 16), Qt::green), QIcon::Normal, QIcon::On);
    QWidget window;
    ZelSvgLabel label(icon, QSize(16, 16), &window);
    QCOMPARE(label.size(), QSize(16, 16));
    QCOMPARE(picture(label).pixelColor(8, 8), QColor(Qt::red));
    label.setMode(QIcon::Disabled);
    QCOMPARE(picture(label).pixelColor(8, 8), QColor(Qt::blue));
    label.setMode(QIcon::Normal);
    label.setState(QIcon::On);
    QCOMPARE(picture(label).pixelColor(8, 8), QColor(Qt::green));
    label.setToolTip(text("A lock"));
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&label);
    QCOMPARE(face->role(), QAccessible::Graphic);
    QCOMPARE(face->text(QAccessible::Name), text("A lock"));
}

void TestLabels::picturesAreScaledAndPlaceholdersShared()
{
    ZelPixmapLabel label(QSize(40, 20));
    ZelPixmapLabel other(QSize(40, 20));
    QCOMPARE(label.size(), QSize(42, 22));
    const QImage placeholder = picture(label);
    QCOMPARE(picture(other), placeholder);
    label.setPixmap(filled(QSize(100, 100), Qt::red));
    QCOMPARE(picture(label).pixelColor(10, 11), QColor(Qt::red));
    QVERIFY(picture(label).pixelColor(30, 11) != QColor(Qt::red));
    const QImage framed = picture(label);
    label.setDrawBorder(false);
    QVERIFY(picture(label) != framed);
    label.setDrawBorder(true);
    label.clear();
    QCOMPARE(picture(label), placeholder);
    ZelPixmapLabel nothing(QSize(-5, 0));
    nothing.setPixmap(filled(QSize(10, 10), Qt::red));
    QVERIFY(!picture(nothing).isNull());
}

void TestLabels::aPictureIsDraggedWithItsData()
{
    ZelPixmapLabel label(QSize(60, 60));
    label.show();
    // The platform of the tests ends each drag at once and leaves it to be deleted.
    const auto drags = [&label] {
        return label.findChildren<QDrag *>();
    };
    UserInput::drag(&label, QPoint(5, 5), QPoint(50, 5));
    label.setDragMimeData(text("x/y"), "data");
    const QPoint close(5 + QApplication::startDragDistance() - 1, 5);
    UserInput::drag(&label, QPoint(5, 5), close);
    UserInput::drag(&label, QPoint(5, 5), QPoint(50, 5), {}, Qt::RightButton);
    QVERIFY(drags().isEmpty());
    UserInput::drag(&label, QPoint(5, 5), QPoint(50, 5));
    QCOMPARE(drags().size(), 1);
    QCOMPARE(drags().first()->mimeData()->data(text("x/y")), QByteArray("data"));
    QCOMPARE(drags().first()->mimeData()->formats(), QStringList(text("x/y")));
}

void TestLabels::aPictureKeepsItsAspectRatio()
{
    ZelAspectRatioLabel label;
    QVERIFY(!picture(label).isNull());
    label.setPixmap(filled(QSize(100, 50), Qt::red));
    QCOMPARE(label.heightForWidth(30), 15);
    label.resize(100, 100);
    const QImage shown = picture(label);
    QCOMPARE(shown.pixelColor(50, 50), QColor(Qt::red));
    QVERIFY(shown.pixelColor(50, 20) != QColor(Qt::red));
    QVERIFY(shown.pixelColor(50, 80) != QColor(Qt::red));
}

void TestLabels::theFlipLabelTellsPressesAndStates()
{
    ZelFlipLabel label(text("Section"), false);
    label.show();
    QSignalSpy clicked(&label, &ZelFlipLabel::clicked);
    QTest::mousePress(&label, Qt::RightButton);
    QCOMPARE(clicked.count(), 0);
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QTest::keyClick(&label, Qt::Key_Space);
    QTest::keyClick(&label, Qt::Key_Return);
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(&label);
    face->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 4);
    QVERIFY(!label.isOpen());
    QCOMPARE(face->text(QAccessible::Name), text("Section"));
    QVERIFY(face->state().collapsed);

    // The sheet sees each state at once.
    label.setStyleSheet(text("ZelFlipLabel[open=\"true\"] { max-width: 71px; }"
                             "ZelFlipLabel[disabled=\"true\"] { max-width: 72px; }"));
    label.setOpen(true);
    QCOMPARE(label.maximumWidth(), 71);
    QVERIFY(face->state().expanded);
    label.setDisabled(true);
    QCOMPARE(label.maximumWidth(), 72);
    face->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.count(), 4);
    const QSize withArrow = label.sizeHint();
    label.setArrowVisible(false);
    QCOMPARE(label.sizeHint().width(), withArrow.width() - 11);
}

void TestLabels::theFlipLabelStoresItsStateAtTheEnd()
{
    const QString key = text("panel.section");
    {
        ZelFlipLabel label(text("Section"), key, true);
        QVERIFY(label.isOpen());
        label.setOpen(false);
        QVERIFY(!ZelSettings().hasKey(key));
    }
    QCOMPARE(ZelSettings().value(key), QVariant(false));
    QVERIFY(!ZelFlipLabel(text("Section"), key, true).isOpen());
    ZelSettings().setValue(key, text("no bool"));
    QVERIFY(ZelFlipLabel(text("Section"), key, true).isOpen());
}

void TestLabels::anEditableLabelTakesOverOrKeepsItsText()
{
    QWidget window;
    ZelEditableLabel label(&window);
    label.setText(text("first"));
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    auto *edit = label.findChild<QLineEdit *>();
    QSignalSpy finished(&label, &ZelEditableLabel::editingFinished);

    QTest::mouseDClick(&label, Qt::LeftButton);
    QTRY_VERIFY(edit->hasFocus());
    QCOMPARE(edit->selectedText(), text("first"));
    QTest::keyClicks(edit, text("second"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(label.getText(), text("second"));
    QCOMPARE(label.currentIndex(), 0);
    QCOMPARE(finished.count(), 1);

    QTRY_VERIFY(label.hasFocus());
    QTest::keyClick(&label, Qt::Key_F2);
    QTRY_VERIFY(edit->hasFocus());
    QTest::keyClicks(edit, text("third"));
    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(label.getText(), text("second"));
    QCOMPARE(label.currentIndex(), 0);
    QCOMPARE(finished.count(), 1);

    label.setEditable(false);
    QTest::mouseDClick(&label, Qt::LeftButton);
    QCOMPARE(label.currentIndex(), 0);
}

ZEL_TEST_MAIN(TestLabels)
#include "tst_labels.moc"
