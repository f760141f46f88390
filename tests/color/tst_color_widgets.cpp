#include "PopupCloser.h"
#include "TestCase.h"
#include "UserInput.h"
#include "color/ZelCheckerBrush.h"
#include "color/ZelColorMime.h"
#include "color/ZelColorText.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelCore/ZelMimeTypes>
#include <ZelDeliveryManager/ZelFeatureFlags>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorDialog>
#include <ZelWidgets/ZelColorViewer>
#include <ZelWidgets/ZelColorWidget>

#include <QAccessible>
#include <QClipboard>
#include <QDrag>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>

namespace {

constexpr QSize fieldSize(48, 24);

ZelColor rgb(float red, float green, float blue)
{
    return {ZelColor::Space::RGB, red, green, blue};
}

zelsg::Color redAndBlue()
{
    zelsg::Color color(rgb(1, 0, 0));
    color.appendColor(rgb(0, 0, 1));
    return color;
}

QImage shot(QWidget &widget)
{
    return widget.grab().toImage();
}

QByteArray stored(const zelsg::Color &color)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << color;
    return bytes;
}

bool drop(QWidget *field, const QMimeData &data)
{
    return UserInput::dropOn(field, field->rect().center(), data);
}

} // namespace

class ColorWidgetsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void textsAreRead_data();
    void textsAreRead();
    void textsAreWritten();
    void checkerIsSeenThroughTheColor();
    void fieldShowsItsColor();
    void fieldKeepsAColorOfItsOwn();
    void fieldTellsOfClicks();
    void dialogComesAndGoes();
    void dialogHasWhatTheFieldAsksFor();
    void fieldFollowsItsDialog();
    void fieldMayGoWithItsDialog();
    void dropsAreTaken();
    void dragCarriesColorAndPicture();
    void viewerTakesOldOrNew();
    void viewerCopiesNumbers();
    void assistiveTechnologySeesTheColor();
};

void ColorWidgetsTest::init()
{
    TestCase::init();
    orv::cdm::setFeatureOverride("multi_colors", false);
    ZelGammaPolicy::get()->setEnableGammaCorrection(false);
    ZelGammaPolicy::get()->setGammaCorrectValues(true);
    IconColorTheme::instance()->loadThemeFile(QStringLiteral(":/res/icon_themes/light_theme.json"));
}

void ColorWidgetsTest::textsAreRead_data()
{
    QTest::addColumn<QString>("hex");
    const auto add = [](const char *text, const char *hex) {
        QTest::newRow(text) << QString::fromLatin1(hex);
    };
    const QByteArray oranges =
        "#f80|f80| #FF8800 |ff8800|0xff8800|#ff8800cc|#f80c|#f80;|rgb(255,136,0)|"
        "RGB( 255 , 136, 0 )|rgb(255 136 0)|rgba(255, 136, 0, 0.5)|rgb(255 136 0 / 50%)|"
        "rgb(100%, 53.3%, 0%)|100% 53.3% 0%|255, 136, 0|1, .5333, 0|1.0\t0.53333 0.0|"
        "1.0 0.53333 0.0 1.0|rgb(1.0, 0.53333, 0.0)|300, 136, -5|1.7, 0.53333, -1";
    for (const QByteArray &orange : oranges.split('|'))
        add(orange, "#ff8800");
    add("255 128 000", "#ff8000");
    add("1 1 0", "#ffff00");
    add("rgb(1, 1, 0)", "#010100");
    add("123", "#112233");
    add("DarkOrange", "#ff8c00");
    add("rebeccapurple", "#663399");
    const QByteArray others =
        "|#|#ff|#fffff|#ggg|0xff|ff|rgb()|rgb(1,2)|rgb(1,2,3,4,5)|rgb(1,2,3|rgb((1,2,3))|"
        "rgb(10%, 5, 6)|nan 0 0|inf,1,1|1e999 1 1|1,,2|transparent|redd|rgb(red, 1, 2)|"
        "1 2 3 four|url(#fff)";
    for (const QByteArray &other : others.split('|'))
        add(other, "");
    QTest::newRow("long") << QString();
}

void ColorWidgetsTest::textsAreRead()
{
    QFETCH(QString, hex);
    QString text = QString::fromUtf8(QTest::currentDataTag());
    if (text == QStringLiteral("long"))
        text = QString(1'000'000, u'f');
    const auto color = ZelColorText::read(text);
    QCOMPARE(color ? ZelColorText::hex(*color) : QString(), hex);
}

void ColorWidgetsTest::textsAreWritten()
{
    const ZelColor color = rgb(1.5F, 0.5F, -1);
    QCOMPARE(ZelColorText::hex(color), QStringLiteral("#ff8000"));
    QCOMPARE(ZelColorText::rgb(color), QStringLiteral("rgb(255, 128, 0)"));
    QCOMPARE(ZelColorText::floats(color), QStringLiteral("1.0000, 0.5000, 0.0000"));
    QCOMPARE(ZelColorText::hex({ZelColor::Space::HSV, 240, 1, 1}), QStringLiteral("#0000ff"));
    const float nan = std::numeric_limits<float>::quiet_NaN();
    QCOMPARE(ZelColorText::floats(rgb(nan, 1, 0)), QStringLiteral("0.0000, 1.0000, 0.0000"));
}

void ColorWidgetsTest::checkerIsSeenThroughTheColor()
{
    for (const qreal ratio : {1.0, 2.0}) {
        const QImage plain = ZelCheckerBrush::checker(fieldSize, ratio);
        QCOMPARE(plain.format(), QImage::Format_ARGB32);
        QCOMPARE(plain.size(), fieldSize * ratio);
        const int inside = int(3 * ratio);
        const int next = int(9 * ratio);
        QCOMPARE(plain.pixel(inside, inside), plain.pixel(next, next));
        QVERIFY(plain.pixel(inside, inside) != plain.pixel(next, inside));
        QCOMPARE(plain.pixel(next, inside), plain.pixel(inside, next));
    }
    ZelColorWidget field(rgb(1, 0, 0), fieldSize, false);
    field.setColor(QColor(255, 0, 0, 128), true);
    const QImage half = shot(field);
    const QColor one = half.pixelColor(3, 9);
    const QColor other = half.pixelColor(9, 9);
    QVERIFY(one != other);
    QVERIFY(one.red() > 200 && other.red() > 200 && one.green() > 50 && other.green() > 50);
    QCOMPARE(field.getQColor(), QColor(255, 0, 0, 128));

    for (const QColor &opaque : {QColor(255, 0, 0, 254), QColor(255, 0, 0)}) {
        field.setColor(opaque, true);
        QCOMPARE(shot(field).pixelColor(9, 9), QColor(Qt::red));
    }
    field.setColor(QColor(255, 0, 0, 10), false);
    QCOMPARE(shot(field).pixelColor(9, 9), QColor(Qt::red));
    QCOMPARE(field.getQColor().alpha(), 255);
}

void ColorWidgetsTest::fieldShowsItsColor()
{
    const QPoint middle(24, 12);
    ZelColorWidget field(rgb(0.5F, 0.5F, 0.5F), fieldSize, false);
    QCOMPARE(shot(field).pixelColor(middle).red(), 128);
    ZelGammaPolicy::get()->setEnableGammaCorrection(true);
    QCOMPARE(shot(field).pixelColor(middle).red(), 186);
    ZelGammaPolicy::get()->setEnableGammaCorrection(false);
    QPixmap picture(5, 5);
    picture.fill(Qt::green);
    field.setPixmap(picture);
    QCOMPARE(shot(field).pixelColor(middle), QColor(Qt::green));
    field.setPixmap(QPixmap());
    QCOMPARE(shot(field).pixelColor(middle).red(), 128);
    field.setPixmap(picture);
    field.setActiveColor(rgb(0, 0, 1));
    const QImage blue = shot(field);
    QCOMPARE(blue.pixelColor(middle), QColor(Qt::blue));

    zelsg::Color list(rgb(0, 0, 1));
    list.appendColor(rgb(1, 0, 0));
    field.setColor(list);
    QVERIFY(shot(field) != blue);
    QCOMPARE(shot(field).pixelColor(6, 6), QColor(Qt::blue));
}

void ColorWidgetsTest::fieldKeepsAColorOfItsOwn()
{
    zelsg::Color callers = redAndBlue();
    ZelColorWidget field(callers, fieldSize, false);
    QSignalSpy updated(&field, &ZelColorWidget::colorUpdated);
    callers.setColor(rgb(0, 1, 0), zelsg::NameOp::Keep);
    QCOMPARE(field.getColor(), redAndBlue());
    field.setColor(callers);
    field.setActiveColor(rgb(1, 1, 0));
    QCOMPARE(callers.getActive(), rgb(0, 1, 0));
    QCOMPARE(field.getColor().getActive(), rgb(1, 1, 0));
    QCOMPARE(field.getColor().nColors(), 2);
    field.getColor().setActiveIndex(1);
    QCOMPARE(field.getZelColor(), rgb(1, 1, 0));
    QCOMPARE(updated.size(), 0);

    // The name is the colour's until the owner has one for it.
    callers.setColorName("Meadow");
    field.setColor(callers);
    QCOMPARE(field.toolTip(), QStringLiteral("Meadow"));
    field.setToolTip(QStringLiteral("Diffuse"));
    field.setColor(redAndBlue());
    QCOMPARE(field.toolTip(), QStringLiteral("Diffuse"));
}

void ColorWidgetsTest::fieldTellsOfClicks()
{
    ZelColorWidget field(rgb(1, 0, 0), fieldSize, false);
    QSignalSpy clicked(&field, &ZelColorWidget::clicked);
    QSignalSpy doubled(&field, &ZelColorWidget::doubleClicked);
    const QPoint middle = field.rect().center();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton})
        UserInput::press(&field, middle, {}, button);
    QTest::keyClick(&field, Qt::Key_Space);
    QTest::keyClick(&field, Qt::Key_Return);
    QCOMPARE(clicked.size(), 4);
    QCOMPARE(clicked.last().first().value<ZelColor>(), rgb(1, 0, 0));
    QTest::mouseDClick(&field, Qt::LeftButton, {}, middle);
    QCOMPARE(doubled.size(), 1);
    QVERIFY(!field.findChild<ZelColorDialog *>());

    // Whoever is told may delete the field.
    auto *doomed = new ZelColorWidget(rgb(1, 0, 0), fieldSize, true);
    connect(doomed, &ZelColorWidget::clicked, this, [doomed] { delete doomed; });
    QTest::keyClick(doomed, Qt::Key_Space);
}

void ColorWidgetsTest::dialogComesAndGoes()
{
    ZelColorWidget field(rgb(1, 0, 0), fieldSize, true);
    field.show();
    QSignalSpy finished(&field, &ZelColorWidget::editingFinished);
    const QPoint middle = field.rect().center();
    UserInput::press(&field, middle, {}, Qt::RightButton);
    field.setShowModal(true);
    UserInput::press(&field, middle);
    QVERIFY(!field.findChild<ZelColorDialog *>());

    field.setShowModal(false);
    UserInput::press(&field, middle);
    QPointer<ZelColorDialog> dialog = field.findChild<ZelColorDialog *>();
    QVERIFY(dialog && dialog->isVisible() && !dialog->isModal());
    QVERIFY(field.property("ActiveBorder").toBool());
    field.showColorDialog();
    QCOMPARE(field.findChildren<ZelColorDialog *>(), QList<ZelColorDialog *>{dialog});
    dialog->accept();
    QCOMPARE(finished.size(), 1);
    QVERIFY(!field.property("ActiveBorder").toBool());
    QTRY_VERIFY(!dialog);

    field.setShowModal(true);
    field.showColorDialog();
    dialog = field.findChild<ZelColorDialog *>();
    QVERIFY(dialog && dialog->isModal());
    dialog->hide();
    field.showColorDialog();
    QVERIFY(!dialog);
    QCOMPARE(field.findChildren<ZelColorDialog *>().size(), 1);
    field.cancelColorDialog();
    QVERIFY(!field.property("ActiveBorder").toBool());
    QCOMPARE(finished.size(), 1);
    field.cancelColorDialog();
}

void ColorWidgetsTest::dialogHasWhatTheFieldAsksFor()
{
    ZelColor named = rgb(1, 0, 0);
    named.setName("Poppy");
    ZelColorWidget field(named, fieldSize, true);
    QCOMPARE(field.toolTip(), QStringLiteral("Poppy"));
    field.setTitle(QStringLiteral("Sky"));
    field.setColor(QColor(255, 0, 0, 64), true);
    field.setToolTip(QStringLiteral("Diffuse"));
    field.showColorDialog();
    auto *dialog = field.findChild<ZelColorDialog *>();
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Color Picker - Sky"));
    QCOMPARE(dialog->getColorName(), QStringLiteral("Diffuse"));
    QCOMPARE(dialog->getQColor().alpha(), 64);
}

void ColorWidgetsTest::fieldFollowsItsDialog()
{
    ZelColorWidget field(rgb(1, 0, 0), fieldSize, true);
    field.setColor(QColor(255, 0, 0, 128), true);
    field.showColorDialog();
    auto *dialog = field.findChild<ZelColorDialog *>();
    QSignalSpy updated(&field, &ZelColorWidget::colorUpdated);
    QSignalSpy saved(&field, &ZelColorWidget::saveColorToLibrary);
    // An owner that shows what it is told must not disturb.
    connect(&field, &ZelColorWidget::colorUpdated, &field,
            qOverload<zelsg::Color>(&ZelColorWidget::setColor));
    zelsg::Color picked(rgb(0, 1, 0));
    picked.setColorName("Leaf");
    dialog->setTransparency(0.25F);
    Q_EMIT dialog->colorChanged(picked, false);
    QCOMPARE(updated.size(), 1);
    QCOMPARE(field.getQColor(), QColor::fromRgbF(0, 1, 0, 0.25F));
    QCOMPARE(field.toolTip(), QStringLiteral("Leaf"));
    const auto told = updated.last().first().value<zelsg::Color>();
    picked.setColor(rgb(1, 1, 1), zelsg::NameOp::Keep);
    QCOMPARE(told.getActive(), rgb(0, 1, 0));
    Q_EMIT dialog->saveColorToLibrary(picked);
    QCOMPARE(saved.size(), 1);

    field.setColor(zelsg::Color(rgb(0, 0, 1)));
    QCOMPARE(toQColor(dialog->getColor().getActive()), QColor(Qt::blue));
    updated.clear();
    field.cancelColorDialog();
    QVERIFY(!updated.isEmpty());
    QCOMPARE(field.getQColor(), QColor(255, 0, 0, 128));
}

void ColorWidgetsTest::fieldMayGoWithItsDialog()
{
    auto field = std::make_unique<ZelColorWidget>(rgb(1, 0, 0), fieldSize, true);
    QSignalSpy updated(field.get(), &ZelColorWidget::colorUpdated);
    field->showColorDialog();
    const QPointer<ZelColorDialog> dialog = field->findChild<ZelColorDialog *>();
    field.reset();
    QVERIFY(!dialog);
    QCOMPARE(updated.size(), 0);
}

void ColorWidgetsTest::dropsAreTaken()
{
    ZelColorWidget field(rgb(1, 1, 1), fieldSize, false);
    QSignalSpy updated(&field, &ZelColorWidget::colorUpdated);
    QMimeData single;
    single.setData(ZelMimeTypes::COLOR, stored(rgb(1, 0, 0)));
    QVERIFY(drop(&field, single));
    QCOMPARE(field.getZelColor(), rgb(1, 0, 0));
    QMimeData foreign;
    foreign.setColorData(QColor(Qt::blue));
    QVERIFY(drop(&field, foreign));
    QCOMPARE(toQColor(field.getZelColor()), QColor(Qt::blue));
    QCOMPARE(updated.size(), 2);
    QCOMPARE(updated.last().first().value<zelsg::Color>().getActive(), field.getZelColor());

    QMimeData list;
    list.setData(ZelMimeTypes::MULTI_COLOR, stored(redAndBlue()));
    QVERIFY(!drop(&field, list));
    QMimeData both;
    ZelColorMime::encode(redAndBlue(), &both);
    QVERIFY(drop(&field, both));
    QVERIFY(!field.getColor().isMultiColor());
    orv::cdm::setFeatureOverride("multi_colors", true);
    QVERIFY(drop(&field, list));
    QCOMPARE(field.getColor(), redAndBlue());
    QCOMPARE(updated.size(), 4);

    const QByteArray cut = stored(redAndBlue()).chopped(3);
    for (const QString &type :
         {ZelMimeTypes::COLOR, ZelMimeTypes::MULTI_COLOR, QStringLiteral("application/x-color"),
          QStringLiteral("text/plain")}) {
        for (const QByteArray &bytes : {QByteArray(), cut, QByteArray(10000, '\xff')}) {
            QMimeData hostile;
            hostile.setData(type, bytes);
            QVERIFY(!drop(&field, hostile));
        }
    }
    QCOMPARE(field.getColor(), redAndBlue());
    QCOMPARE(updated.size(), 4);
}

void ColorWidgetsTest::dragCarriesColorAndPicture()
{
    ZelColorWidget field(rgb(1, 0, 0), fieldSize, false);
    field.show();
    const QPoint from = field.rect().center();
    UserInput::press(&field, from);
    UserInput::move(&field, from + QPoint(1, 0));
    QVERIFY(!field.findChild<QDrag *>());
    // The platform has no drags of its own; this one ends at once and lies about for a while.
    UserInput::move(&field, from + QPoint(20, 0));
    const auto *drag = field.findChild<QDrag *>();
    QVERIFY(drag);
    QCOMPARE(ZelColorMime::color(drag->mimeData()), std::optional(rgb(1, 0, 0)));
    QCOMPARE(drag->pixmap().toImage().pixelColor(5, 5), QColor(Qt::red));
}

void ColorWidgetsTest::viewerTakesOldOrNew()
{
    ZelColorViewer viewer(rgb(1, 0, 0));
    viewer.show();
    viewer.setColor(rgb(0, 1, 0));
    const auto fields = viewer.findChildren<ZelColorWidget *>();
    QCOMPARE(fields.size(), 2);
    QCOMPARE(fields[0]->size(), QSize(64, 24));
    QSignalSpy selected(&viewer, &ZelColorViewer::colorSelected);
    QSignalSpy doubled(&viewer, &ZelColorViewer::doubleClick);
    const QPoint middle = fields[0]->rect().center();
    UserInput::press(fields[0], middle, {}, Qt::RightButton);
    QCOMPARE(selected.size(), 0);
    QTest::mouseClick(fields[0], Qt::LeftButton, {}, middle);
    QCOMPARE(selected.takeFirst().first().value<ZelColor>(), rgb(1, 0, 0));
    QTest::mouseDClick(fields[1], Qt::LeftButton, {}, middle);
    QCOMPARE(doubled.takeFirst().first().value<ZelColor>(), rgb(0, 1, 0));
    viewer.setOldColor(rgb(0, 0, 1));
    QCOMPARE(viewer.oldColor(), rgb(0, 0, 1));
    QCOMPARE(viewer.color(), rgb(0, 1, 0));

    selected.clear();
    QMimeData data;
    ZelColorMime::encode(rgb(1, 1, 0), &data);
    QVERIFY(!drop(fields[0], data));
    QVERIFY(drop(fields[1], data));
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.first().first().value<ZelColor>(), rgb(1, 1, 0));
}

void ColorWidgetsTest::viewerCopiesNumbers()
{
    ZelColorViewer viewer(rgb(1, 0.5F, 0));
    viewer.show();
    auto *field = viewer.findChild<ZelColorWidget *>();
    const auto copied = [&](int entry) {
        QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(), QPoint());
        QCoreApplication::sendEvent(field, &request);
        QPointer<QMenu> menu = viewer.findChild<QMenu *>();
        menu->actions().at(entry)->trigger();
        menu->close();
        delete menu;
        return QGuiApplication::clipboard()->text();
    };
    ZelGammaPolicy::get()->setGammaCorrectValues(false);
    QCOMPARE(copied(0), QStringLiteral("#ff8000"));
    QCOMPARE(copied(1), QStringLiteral("rgb(255, 128, 0)"));
    QCOMPARE(copied(2), QStringLiteral("1.0000, 0.5000, 0.0000"));
    ZelGammaPolicy::get()->setGammaCorrectValues(true);
    QCOMPARE(copied(0), QStringLiteral("#ffba00"));
}

void ColorWidgetsTest::assistiveTechnologySeesTheColor()
{
    ZelColorWidget field(rgb(1, 0.5F, 0), fieldSize, false);
    field.setToolTip(QStringLiteral("Diffuse"));
    QSignalSpy clicked(&field, &ZelColorWidget::clicked);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&field);
    QCOMPARE(interface->role(), QAccessible::Button);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Diffuse"));
    QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("#ff8000"));
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.size(), 1);
    field.setEnabled(false);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(clicked.size(), 1);
}

ZEL_TEST_MAIN(ColorWidgetsTest)
#include "tst_color_widgets.moc"
