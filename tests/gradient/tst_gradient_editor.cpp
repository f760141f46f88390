// The bar of a gradient and the whole editor, by mouse, keyboard, drops and assistive technology.

#include "TestCase.h"
#include "UserInput.h"
#include "ZelResources.h"
#include "gradient/ZelGradientCommands.h"
#include "gradient/ZelGradientGeometry.h"

#include <ZelCore/ZelMimeTypes>
#include <ZelWidgets/ZelColorDialog>
#include <ZelWidgets/ZelColorWidget>
#include <ZelWidgets/ZelDoubleSliderEdit>
#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientDisplay>
#include <ZelWidgets/ZelGradientView>
#include <ZelWidgets/ZelToolButton>

#include <QAbstractSpinBox>
#include <QAccessible>
#include <QClipboard>
#include <QInputDialog>
#include <QLabel>
#include <QMimeData>
#include <QSignalSpy>

#include <array>
#include <cmath>
#include <functional>
#include <random>

namespace {

const ZelColor red(ZelColor::Space::RGB, 1, 0, 0);
const ZelColor blue(ZelColor::Space::RGB, 0, 0, 1);

void fill(ZelGradient &gradient)
{
    gradient.addColorStop(0.0f, red);
    gradient.addColorStop(0.5f, blue);
    gradient.addColorStop(1.0f, red);
    if (gradient.hasAlpha()) {
        gradient.addAlphaStop(0.0f, 1.0f);
        gradient.addAlphaStop(0.75f, 0.5f);
    }
}

} // namespace

class GradientEditorTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { zelmorawidgets_init_resources(); }
    void barLeavesRoomForHandles();
    void slopesAndPixelsAgree();
    void stopsAreSelectedAndDragged();
    void slopesAreDragged();
    void doubleClicksAddAndEdit();
    void colorsAreDropped();
    void keysWalkMoveAndDelete();
    void stopsAreChildrenToAssistiveTechnology();
    void gradientsAreCopiedPastedAndPlaced();
    void controlsFollowTheSelection();
    void controlsEditTheSelectedStop();
    void closedDialogGivesItsStopTheColorBack();
    void editorsOutliveTheirGradient();
    void anyEditsKeepModelAndEditorInStep();
};

void GradientEditorTest::barLeavesRoomForHandles()
{
    const ZelGradientGeometry plain(QSize(216, 100), false);
    QCOMPARE(plain.bar(), QRect(QPoint(8, 1), QPoint(208, 75)));
    const ZelGradientGeometry withAlpha(QSize(216, 100), true);
    QCOMPARE(withAlpha.bar().height(), plain.bar().height() - 24);
    QCOMPARE(plain.pixelOf(0.5f), qRound(8 + 201 * 0.5));
    QCOMPARE(plain.locationOf(8), 0.0f);
    QCOMPARE(plain.handleRect(0, false), QRect(2, 75 + 18 - 6, 12, 12));
    QCOMPARE(withAlpha.handleRect(0, true), QRect(2, 25 - 18 - 6, 12, 12));
    QCOMPARE(ZelGradientGeometry(QSize(15, 90), false).locationOf(100), 0.0f);
}

void GradientEditorTest::slopesAndPixelsAgree()
{
    const ZelGradientGeometry geometry(QSize(1015, 100), false);
    for (const auto &[selected, neighbour] : {std::pair{0.8f, 0.2f}, std::pair{0.2f, 0.8f}}) {
        for (const float slope : {0.0f, 0.5f, 1.0f, 3.9f, 4.0f}) {
            const int pixel = geometry.slopePixel(slope, selected, neighbour);
            QVERIFY(std::abs(geometry.slopeAt(pixel, selected, neighbour) - slope) < 0.02f);
        }
        const bool isBehind = selected > neighbour;
        QCOMPARE(geometry.slopeAt(-500, selected, neighbour), isBehind ? 0.0f : 4.0f);
        QCOMPARE(geometry.slopeAt(5000, selected, neighbour), isBehind ? 4.0f : 0.0f);
    }
    for (const int pixel : {-10, 508, 509, 2000}) {
        const float slope = geometry.slopeAt(pixel, 0.5f, 0.5f);
        QVERIFY(slope >= 0.0f && slope <= 4.0f);
    }
}

/// A shown bar with a filled gradient, and where its parts are.
class Bar
{
public:
    explicit Bar(ZelGradient::Features features = ZelGradient::Alpha)
        : gradient(features)
    {
        fill(gradient);
        display.setGradient(&gradient);
        display.resize(315, 110);
        display.show();
        display.grab();
    }
    ZelGradientGeometry geometry() const { return {display.size(), gradient.hasAlpha()}; }
    QPoint color(float location) const { return geometry().handleOf(location, false); }
    QPoint alpha(float location) const { return geometry().handleOf(location, true); }
    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&display, Qt::Key(key), modifiers);
    }

    ZelGradient gradient;
    ZelGradientDisplay display;
};

void GradientEditorTest::stopsAreSelectedAndDragged()
{
    Bar bar;
    const QSignalSpy changed(&bar.display, &ZelGradientDisplay::gradientChanged);
    const ZelGradientStop middle = bar.gradient.colorStop(1);
    UserInput::drag(&bar.display, bar.color(0.5f), bar.color(0.25f));
    QVERIFY(bar.gradient.selected() == middle);
    QVERIFY(std::abs(middle.location() - 0.25f) < 0.01f);
    QVERIFY(!changed.isEmpty());
    // Past its neighbour and the end of the bar: the stop stays the same one.
    UserInput::drag(&bar.display, bar.color(middle.location()), bar.color(0.25f) - QPoint(300, 0));
    QCOMPARE(middle.location(), 0.0f);
    QVERIFY(bar.gradient.selected() == middle);
    UserInput::press(&bar.display, bar.alpha(0.75f));
    QVERIFY(bar.gradient.selected() == bar.gradient.alphaStop(1));
    UserInput::release(&bar.display, bar.alpha(0.75f));
    UserInput::press(&bar.display, bar.geometry().bar().center());
    QVERIFY(bar.gradient.selected().isNull());
    // Where handles overlap, the first of the list is taken.
    const ZelGradientStop first = bar.gradient.colorStop(0);
    bar.gradient.colorStop(1).setLocation(first.location());
    UserInput::press(&bar.display, bar.color(first.location()));
    QVERIFY(bar.gradient.selected() == bar.gradient.colorStop(0));
}

void GradientEditorTest::slopesAreDragged()
{
    Bar bar;
    const ZelGradientStop middle = bar.gradient.colorStop(1);
    bar.gradient.setSelected(middle);
    bar.display.grab();
    const auto handle = [&](float slope, float neighbour) {
        return QPoint(bar.geometry().slopePixel(slope, 0.5f, neighbour),
                      bar.geometry().bar().bottom() + 8);
    };
    UserInput::drag(&bar.display, handle(1, 0), handle(3, 0));
    QVERIFY(std::abs(middle.slopeIn() - 3.0f) < 0.1f);
    QCOMPARE(middle.slopeOut(), 1.0f);
    bar.display.grab();
    UserInput::drag(&bar.display, handle(1, 1), handle(1, 1) + QPoint(400, 0));
    QCOMPARE(middle.slopeOut(), 0.0f);
    QCOMPARE(middle.location(), 0.5f);
    // Its neighbour goes in the middle of the drag.
    bar.display.grab();
    const float slope = middle.slopeIn();
    UserInput::press(&bar.display, handle(slope, 0));
    bar.gradient.removeStop(bar.gradient.colorStop(0));
    UserInput::move(&bar.display, handle(0, 0));
    UserInput::release(&bar.display, handle(0, 0));
    QCOMPARE(middle.slopeIn(), slope);
}

void GradientEditorTest::doubleClicksAddAndEdit()
{
    Bar bar;
    const QSignalSpy edited(&bar.display, &ZelGradientDisplay::stopDoubleClicked);
    const QPoint quarter(bar.geometry().pixelOf(0.25f), bar.geometry().bar().center().y());
    QTest::mouseDClick(&bar.display, Qt::LeftButton, {}, quarter);
    QCOMPARE(bar.gradient.colorStops(), 4);
    const auto [r, g, b] = bar.gradient.colorStop(1).color().toRGB();
    QVERIFY(std::abs(r - 0.5f) < 0.02f && std::abs(b - 0.5f) < 0.02f && g == 0.0f);
    QVERIFY(bar.gradient.selected().isNull());
    QCOMPARE(edited.size(), 0);
    QTest::mouseClick(&bar.display, Qt::LeftButton, {}, bar.color(1));
    QTest::mouseDClick(&bar.display, Qt::LeftButton, {}, bar.color(1));
    QCOMPARE(edited.size(), 1);
    QCOMPARE(bar.gradient.colorStops(), 4);
}

void GradientEditorTest::colorsAreDropped()
{
    Bar bar;
    bar.gradient.setSelected(bar.gradient.colorStop(0));
    QMimeData green;
    green.setColorData(QColor(Qt::green));
    QVERIFY(UserInput::dropOn(&bar.display, bar.color(0.5f), green));
    QCOMPARE(bar.gradient.colorStop(1).color().toRGB()[1], 1.0f);
    QVERIFY(UserInput::dropOn(&bar.display, bar.geometry().bar().center() + QPoint(60, 0), green));
    QCOMPARE(bar.gradient.colorStops(), 4);
    QVERIFY(bar.gradient.selected() == bar.gradient.colorStop(0));
    QMimeData torn;
    torn.setData(ZelMimeTypes::COLOR, QByteArray("\0\1\2", 3));
    QVERIFY(!UserInput::dropOn(&bar.display, bar.geometry().bar().center(), torn));
    QMimeData text;
    text.setText(QStringLiteral("#ff0000"));
    QVERIFY(!UserInput::dropOn(&bar.display, bar.geometry().bar().center(), text));
    QCOMPARE(bar.gradient.colorStops(), 4);
}

void GradientEditorTest::keysWalkMoveAndDelete()
{
    Bar bar;
    bar.display.activateWindow();
    bar.display.setFocus();
    QTRY_VERIFY(bar.display.hasFocus());
    const QSignalSpy edited(&bar.display, &ZelGradientDisplay::stopDoubleClicked);
    for (int index = 0; index < bar.gradient.stops(); ++index) {
        bar.key(Qt::Key_Tab);
        QCOMPARE(bar.gradient.getIndexOfSelected(), index);
    }
    bar.key(Qt::Key_Backtab, Qt::ShiftModifier);
    const ZelGradientStop middle = bar.gradient.colorStop(1);
    QVERIFY(bar.gradient.selected() == middle);
    bar.key(Qt::Key_Left);
    bar.key(Qt::Key_Right, Qt::ShiftModifier);
    QVERIFY(std::abs(middle.location() - 0.491f) < 1e-4f);
    bar.key(Qt::Key_Return);
    QCOMPARE(edited.size(), 1);
    bar.key(Qt::Key_Delete);
    QVERIFY(middle.isNull());
    for (int left = bar.gradient.stops(); left > 2; --left) {
        bar.gradient.setSelected(bar.gradient.colorStop(0));
        bar.key(Qt::Key_Delete);
    }
    bar.gradient.setSelected(*bar.gradient.begin());
    bar.key(Qt::Key_Delete);
    QCOMPARE(bar.gradient.stops(), 2);
}

void GradientEditorTest::stopsAreChildrenToAssistiveTechnology()
{
    Bar bar;
    QAccessibleInterface *stops = QAccessible::queryAccessibleInterface(&bar.display);
    QVERIFY(stops);
    QCOMPARE(stops->childCount(), 5);
    QAccessibleInterface *middle = stops->child(3);
    QCOMPARE(middle->text(QAccessible::Name), QStringLiteral("Color stop 2 of 3"));
    QCOMPARE(stops->indexOfChild(middle), 3);
    const QPoint center = bar.display.mapToGlobal(bar.color(0.5f));
    QVERIFY(middle->rect().contains(center));
    QVERIFY(stops->childAt(center.x(), center.y()) == middle);
    middle->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(middle->state().selected);
    middle->valueInterface()->setCurrentValue(30);
    QVERIFY(std::abs(bar.gradient.colorStop(1).location() - 0.3f) < 1e-4f);
    bar.gradient.removeStop(bar.gradient.colorStop(0));
    QAccessibleInterface *last = stops->child(3);
    bar.gradient.removeStop(bar.gradient.colorStop(0));
    QVERIFY(!last->isValid());
    QVERIFY(last->text(QAccessible::Name).isEmpty());
}

void GradientEditorTest::gradientsAreCopiedPastedAndPlaced()
{
    Bar bar;
    Bar other(ZelGradient::Features{});
    ZelGradientCommands::copy(&bar.display);
    QVERIFY(ZelGradientCommands::canPaste());
    ZelGradientCommands::reverse(&bar.display);
    QVERIFY(std::abs(bar.gradient.alphaStop(0).location() - 0.25f) < 1e-6f);
    ZelGradientCommands::paste(&bar.display);
    QCOMPARE(bar.gradient.alphaStop(0).location(), 0.0f);
    ZelGradientCommands::paste(&other.display);
    QCOMPARE(other.gradient.alphaStops(), 0);
    QGuiApplication::clipboard()->setText(QStringLiteral("zelgradient 1\nnonsense"));
    messages().expect(QtWarningMsg, QStringLiteral("not a gradient"));
    ZelGradientCommands::paste(&bar.display);
    QCOMPARE(bar.gradient.stops(), 5);

    bar.gradient.setSelected(bar.gradient.colorStop(1));
    ZelGradientCommands::askForPosition(&bar.display);
    auto *dialog = bar.display.findChild<QInputDialog *>();
    QVERIFY(dialog);
    dialog->setDoubleValue(12.5);
    dialog->accept();
    QCOMPARE(bar.gradient.colorStop(1).location(), 0.125f);
}

/// A shown editor and its parts.
class Editor
{
public:
    explicit Editor(ZelGradient *gradient)
        : view(nullptr)
    {
        view.setGradient(gradient);
        view.show();
    }
    ZelToolButton *button(const QString &tip) const
    {
        for (auto *button : view.findChildren<ZelToolButton *>()) {
            if (button->toolTip() == tip)
                return button;
        }
        return nullptr;
    }
    ZelDoubleSliderEdit *row(const QString &name) const
    {
        for (auto *row : view.findChildren<ZelDoubleSliderEdit *>()) {
            for (auto *label : row->findChildren<QLabel *>()) {
                if (label->text().remove(u'&') == name)
                    return row;
            }
        }
        return nullptr;
    }
    ZelDoubleSliderEdit *opacity() const { return row(QStringLiteral("Stop Opacity")); }
    ZelDoubleSliderEdit *brightness() const { return row(QStringLiteral("Stop Brightness")); }
    ZelToolButton *remove() const { return button(QStringLiteral("Delete Stop")); }
    ZelColorWidget *color() const { return view.findChild<ZelColorWidget *>(); }
    ZelColorDialog *dialog() const { return view.findChild<ZelColorDialog *>(); }

    ZelGradientView view;
};

void GradientEditorTest::controlsFollowTheSelection()
{
    for (const int features : {0, int(ZelGradient::Alpha), int(ZelGradient::Hdr),
                               int(ZelGradient::Alpha | ZelGradient::Hdr)}) {
        ZelGradient gradient{ZelGradient::Features(features)};
        const bool hasOpacity = gradient.hasAlpha();
        fill(gradient);
        Editor editor(&gradient);
        QVERIFY(gradient.selected() == gradient.colorStop(0));
        QCOMPARE(editor.opacity()->isVisible(), hasOpacity);
        QCOMPARE(editor.button(QStringLiteral("Add Opacity Stop"))->isVisible(), hasOpacity);
        QCOMPARE(editor.brightness()->isVisible(), (features & ZelGradient::Hdr) != 0);
        QVERIFY(editor.color()->isEnabled() && editor.remove()->isEnabled());
        QVERIFY(editor.brightness()->isEnabled() && !editor.opacity()->isEnabled());
        if (hasOpacity) {
            gradient.setSelected(gradient.alphaStop(1));
            QVERIFY(!editor.color()->isEnabled() && !editor.brightness()->isEnabled());
            QVERIFY(editor.opacity()->isEnabled());
            QCOMPARE(editor.opacity()->value(), 0.5f);
        }
        const bool wasEnabled = editor.brightness()->isEnabled();
        editor.remove()->click();
        QVERIFY(gradient.selected().isNull());
        QVERIFY(!editor.color()->isEnabled() && !editor.opacity()->isEnabled());
        QVERIFY(!editor.remove()->isEnabled());
        QCOMPARE(editor.brightness()->isEnabled(), wasEnabled);
        while (gradient.stops() > 2)
            gradient.removeStop(*gradient.begin());
        gradient.setSelected(*gradient.begin());
        QVERIFY(!editor.remove()->isEnabled());
    }
}

void GradientEditorTest::controlsEditTheSelectedStop()
{
    ZelGradient gradient(ZelGradient::Alpha | ZelGradient::Hdr);
    fill(gradient);
    Editor editor(&gradient);
    const QSignalSpy changed(&editor.view, &ZelGradientView::gradientChanged);
    auto *brightness = editor.brightness()->findChild<QAbstractSpinBox *>();
    brightness->selectAll();
    UserInput::type(brightness, QStringLiteral("7.5"));
    QTest::keyClick(brightness, Qt::Key_Return);
    QCOMPARE(gradient.colorStop(0).gain(), 7.5f);
    QVERIFY(!changed.isEmpty());
    const ZelGradientStop before = gradient.selected();
    editor.button(QStringLiteral("Add Stop"))->click();
    QVERIFY(gradient.selected() == before);
    editor.button(QStringLiteral("Add Opacity Stop"))->click();
    QVERIFY(gradient.selected().isAlpha());
    auto *opacity = editor.opacity()->findChild<QAbstractSpinBox *>();
    opacity->selectAll();
    UserInput::type(opacity, QStringLiteral("0.25"));
    QTest::keyClick(opacity, Qt::Key_Return);
    QCOMPARE(gradient.selected().alpha(), 0.25f);
    ZelGradientStop stop = gradient.colorStop(1);
    stop.setSlopeIn(3);
    gradient.setSelected(stop);
    editor.button(QStringLiteral("Smooth Stop"))->click();
    QCOMPARE(stop.slopeIn(), 2.0f);
    QCOMPARE(stop.slopeOut(), 2.0f);
}

void GradientEditorTest::closedDialogGivesItsStopTheColorBack()
{
    ZelGradient gradient(ZelGradient::Alpha);
    fill(gradient);
    Editor editor(&gradient);
    const ZelGradientStop stop = gradient.colorStop(1);
    gradient.setSelected(stop);
    auto *display = editor.view.findChild<ZelGradientDisplay *>();
    Q_EMIT display->stopDoubleClicked(gradient.alphaStop(0));
    QVERIFY(!editor.dialog());
    Q_EMIT display->stopDoubleClicked(stop);
    QVERIFY(editor.dialog() && editor.dialog()->isVisible());
    Q_EMIT editor.dialog()->colorChanged(zelsg::Color(red), false);
    QVERIFY(stop.color() == red);
    editor.dialog()->setColorNoSignal(zelsg::Color(red));
    gradient.setSelected(gradient.alphaStop(0));
    QTRY_VERIFY(!editor.dialog() || !editor.dialog()->isVisible());
    QVERIFY(stop.color() == blue);
    QVERIFY(gradient.colorStop(0).color() == red);
}

void GradientEditorTest::editorsOutliveTheirGradient()
{
    auto gradient = std::make_unique<ZelGradient>(ZelGradient::Alpha);
    fill(*gradient);
    Editor editor(gradient.get());
    auto *display = editor.view.findChild<ZelGradientDisplay *>();
    display->grab();
    UserInput::press(display, ZelGradientGeometry(display->size(), true).handleOf(0.5f, false));
    gradient.reset();
    UserInput::move(display, QPoint(40, 40));
    UserInput::release(display, QPoint(40, 40));
    QTest::mouseDClick(display, Qt::LeftButton, {}, display->rect().center());
    QTest::keyClick(display, Qt::Key_Delete);
    display->grab();
    QVERIFY(!editor.color()->isEnabled());
    for (auto *button : editor.view.findChildren<ZelToolButton *>())
        button->click();
    QVERIFY(!editor.view.gradient());
    ZelGradient next;
    fill(next);
    editor.view.setGradient(&next);
    QVERIFY(editor.color()->isEnabled());
    editor.view.setGradient(nullptr);
    QVERIFY(!editor.color()->isEnabled());
}

void GradientEditorTest::anyEditsKeepModelAndEditorInStep()
{
    constexpr int edits = 10'000;
    ZelGradient gradient(ZelGradient::Alpha | ZelGradient::Hdr);
    Editor editor(&gradient);
    std::mt19937 random(20261121);
    std::uniform_real_distribution<float> numbers(-2.0f, 6.0f);
    const auto wild = [&] {
        return numbers(random);
    };
    ZelGradientStop stop;
    const std::array<std::function<void()>, 10> kinds{
        [&] { gradient.addColorStop(wild(), red); },
        [&] { gradient.addAlphaStop(wild(), wild()); },
        [&] { gradient.stops() > 40 ? gradient.clearStops() : gradient.removeStop(stop); },
        [&] { stop.setLocation(wild()); },
        [&] { wild() > 0 ? stop.setSlopeIn(wild()) : stop.setSlopeOut(wild()); },
        [&] { wild() > 0 ? stop.setAlpha(wild()) : stop.setGain(wild()); },
        [&] { gradient.setSelected(stop); },
        [&] { gradient.clearSelection(); },
        [&] { gradient.reverse(); },
        [&] {
            gradient.setBlend(wild() > 0);
        }};
    for (int edit = 0; edit < edits; ++edit) {
        const int count = gradient.stops();
        stop =
            count > 0 ? *(gradient.begin() + int(random() % unsigned(count))) : ZelGradientStop();
        kinds[random() % kinds.size()]();
        QVERIFY(std::is_sorted(gradient.begin(), gradient.end()));
        const auto alphas = std::count_if(gradient.begin(), gradient.end(),
                                          [](const ZelGradientStop &s) { return s.isAlpha(); });
        QCOMPARE(gradient.alphaStops(), int(alphas));
        QVERIFY(std::all_of(gradient.begin(), gradient.end(), [](const ZelGradientStop &s) {
            return s.location() >= 0 && s.location() <= 1 && s.slopeIn() >= 0 && s.slopeIn() <= 4;
        }));
        const ZelGradientStop selected = gradient.selected();
        QCOMPARE(editor.remove()->isEnabled(), selected && gradient.stops() > 2);
        QCOMPARE(editor.color()->isEnabled(), selected && selected.isColor());
        if (selected && selected.isColor())
            QCOMPARE(editor.brightness()->value(), selected.gain());
        else if (selected)
            QCOMPARE(editor.opacity()->value(), selected.alpha());
    }
}

ZEL_TEST_MAIN(GradientEditorTest)
#include "tst_gradient_editor.moc"
