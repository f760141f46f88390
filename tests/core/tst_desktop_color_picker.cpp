#include "DesktopBusTest.h"

#include "ZelPortalColorPicker.h"

#include <ZelCore/ZelDesktopColorPicker>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>

#include <limits>

namespace {

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QVariant triple(double red, double green, double blue)
{
    QDBusArgument argument;
    argument.beginStructure();
    argument << red << green << blue;
    argument.endStructure();
    return QVariant::fromValue(argument);
}

} // namespace

/// A desktop portal that lets the test choose the answer.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Screenshot")

public:
    QString window;
    QString request;
    QString ownPath;

    void answer(uint code, const QVariantMap &results) const
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            request, text("org.freedesktop.portal.Request"), text("Response"));
        QVERIFY(QDBusConnection(text("desktop")).send(signal << code << results));
    }

public Q_SLOTS:
    QDBusObjectPath PickColor(const QString &parent, const QVariantMap &options,
                              const QDBusMessage &message)
    {
        window = parent;
        QString sender = message.service().mid(1);
        sender.replace(u'.', u'_');
        request = ownPath.isEmpty() ? text("/org/freedesktop/portal/desktop/request/") + sender +
                                          u'/' + options.value(text("handle_token")).toString()
                                    : ownPath;
        return QDBusObjectPath(request);
    }
};

class DesktopColorPickerTest : public DesktopBusTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void pickedColorComes_data();
    void pickedColorComes();
    void anOldPortalAnswersByAPathOfItsOwn();
    void aPortalThatRefusesIsNotAskedAgain();
    void aPortalThatGoesEndsThePick();
    void whoAskedMayGo();
    void withoutABusThereIsNoPicker();

private:
    void pick()
    {
        picker_->pick(text("x11:1f"), context_.get(),
                      [this](const QColor &color) { answers_.append(color); });
    }
    void offer()
    {
        DesktopBusTest::offer("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
                              portal_.get());
    }

    std::unique_ptr<Portal> portal_;
    std::unique_ptr<QObject> context_;
    std::unique_ptr<ZelPortalColorPicker> picker_;
    QList<QColor> answers_;
};

void DesktopColorPickerTest::init()
{
    DesktopBusTest::init();
    answers_.clear();
    portal_ = std::make_unique<Portal>();
    context_ = std::make_unique<QObject>();
    picker_ = std::make_unique<ZelPortalColorPicker>(application());
}

void DesktopColorPickerTest::cleanup()
{
    picker_.reset();
    DesktopBusTest::cleanup();
}

void DesktopColorPickerTest::pickedColorComes_data()
{
    QTest::addColumn<uint>("code");
    QTest::addColumn<QVariant>("color");
    QTest::addColumn<QColor>("expected");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("picked") << 0U << triple(1, 0.5, 0) << QColor::fromRgbF(1, 0.5F, 0);
    QTest::newRow("cancelled") << 1U << triple(1, 0.5, 0) << QColor();
    QTest::newRow("above 1") << 0U << triple(1, 1.5, 0) << QColor();
    QTest::newRow("no number") << 0U << triple(nan, 0, 0) << QColor();
    QTest::newRow("a text") << 0U << QVariant(text("red")) << QColor();
    QTest::newRow("an array") << 0U << QVariant(QStringList{text("1"), text("2")}) << QColor();
}

void DesktopColorPickerTest::pickedColorComes()
{
    SKIP_WITHOUT_BUS();
    QFETCH(uint, code);
    QFETCH(QVariant, color);
    QFETCH(QColor, expected);
    QVERIFY(!picker_->isAvailable());
    offer();
    QVERIFY(picker_->isAvailable());
    pick();
    QTRY_VERIFY(!portal_->request.isEmpty());
    QCOMPARE(portal_->window, text("x11:1f"));
    QVERIFY(answers_.isEmpty());
    portal_->answer(code, {{text("color"), color}});
    QTRY_COMPARE(answers_, QList<QColor>{expected});
    QVERIFY(picker_->isAvailable());
}

void DesktopColorPickerTest::anOldPortalAnswersByAPathOfItsOwn()
{
    SKIP_WITHOUT_BUS();
    offer();
    portal_->ownPath = text("/own/7");
    pick();
    const auto answered = [this] {
        if (!portal_->request.isEmpty())
            portal_->answer(0, {{text("color"), triple(0, 0, 1)}});
        return !answers_.isEmpty();
    };
    QTRY_VERIFY(answered());
    QCOMPARE(answers_, QList<QColor>{QColor::fromRgbF(0, 0, 1)});
}

void DesktopColorPickerTest::aPortalThatRefusesIsNotAskedAgain()
{
    SKIP_WITHOUT_BUS();
    QVERIFY(desktop().registerService(text("org.freedesktop.portal.Desktop")));
    QVERIFY(picker_->isAvailable());
    pick();
    QTRY_COMPARE(answers_, QList<QColor>{QColor()});
    QVERIFY(!picker_->isAvailable());
}

void DesktopColorPickerTest::aPortalThatGoesEndsThePick()
{
    SKIP_WITHOUT_BUS();
    offer();
    pick();
    QTRY_VERIFY(!portal_->request.isEmpty());
    desktop().unregisterService(text("org.freedesktop.portal.Desktop"));
    QTRY_COMPARE(answers_, QList<QColor>{QColor()});
}

void DesktopColorPickerTest::whoAskedMayGo()
{
    SKIP_WITHOUT_BUS();
    offer();
    pick();
    QTRY_VERIFY(!portal_->request.isEmpty());
    context_ = std::make_unique<QObject>();
    portal_->answer(0, {{text("color"), triple(1, 0, 0)}});
    portal_->request.clear();
    pick();
    QTRY_VERIFY(!portal_->request.isEmpty());
    portal_->answer(0, {{text("color"), triple(0, 1, 0)}});
    QTRY_COMPARE(answers_, QList<QColor>{QColor::fromRgbF(0, 1, 0)});
}

void DesktopColorPickerTest::withoutABusThereIsNoPicker()
{
    ZelPortalColorPicker picker(QDBusConnection(text("no such connection")));
    QVERIFY(!picker.isAvailable());
    picker.pick(QString(), this, [this](const QColor &color) { answers_.append(color); });
    QTRY_COMPARE(answers_, QList<QColor>{QColor()});

    // The tests have no session bus.
    QVERIFY(!ZelDesktopColorPicker::instance().isAvailable());
    ZelDesktopColorPicker::instance().pick(QString(), this,
                                           [this](const QColor &color) { answers_.append(color); });
    QTRY_COMPARE(answers_.size(), 2);
}

ZEL_TEST_MAIN(DesktopColorPickerTest)
#include "tst_desktop_color_picker.moc"
