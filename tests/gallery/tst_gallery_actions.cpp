#include "TestCase.h"

#include "GalleryApplication.h"
#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "OwnControl.h"
#include "PageCatalog.h"
#include "PopupCloser.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QMenu>
#include <QMetaMethod>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <vector>

namespace {

using Action = QAccessibleActionInterface;

/// Spies on the clicks of a button, on all signals of others but those of QObject and QWidget.
class AnySignal
{
public:
    explicit AnySignal(QObject *object)
    {
        const QMetaObject *type = object->metaObject();
        for (int i = QWidget::staticMetaObject.methodCount(); i < type->methodCount(); ++i) {
            const bool isMeant = !qobject_cast<QAbstractButton *>(object) ||
                                 type->method(i).name() == QByteArrayLiteral("clicked");
            if (isMeant && type->method(i).methodType() == QMetaMethod::Signal)
                spies_.push_back(std::make_unique<QSignalSpy>(object, type->method(i)));
        }
    }
    bool came() const
    {
        return std::any_of(spies_.begin(), spies_.end(),
                           [](const auto &spy) { return !spy->isEmpty(); });
    }

private:
    std::vector<std::unique_ptr<QSignalSpy>> spies_;
};

QMenu *menuOf(const QWidget *widget)
{
    if (const auto *push = qobject_cast<const QPushButton *>(widget))
        return push->menu();
    const auto *tool = qobject_cast<const QToolButton *>(widget);
    return tool ? tool->menu() : nullptr;
}

bool hasRightRole(QAccessibleInterface *access, const QWidget *widget)
{
    const QAccessible::Role role = access->role();
    if (menuOf(widget))
        return role == QAccessible::ButtonMenu && access->state().hasPopup;
    if (qobject_cast<const QAbstractButton *>(widget)) {
        static const QList<QAccessible::Role> roles{QAccessible::Button, QAccessible::CheckBox,
                                                    QAccessible::RadioButton};
        return roles.contains(role) && (role == QAccessible::Button || access->state().checkable);
    }
    // Qt tells no role of its graphics view.
    if (qstrcmp(widget->metaObject()->className(), "QGraphicsView") == 0)
        return true;
    if (access->state().editable && role == QAccessible::StaticText)
        return false;
    static const QList<QAccessible::Role> vague{QAccessible::NoRole, QAccessible::Client,
                                                QAccessible::Pane, QAccessible::Window};
    return !vague.contains(role);
}

/// What an action is seen by: everything that the object tells of itself.
QString stateOf(QAccessibleInterface *access)
{
    const QAccessible::State state = access->state();
    QStringList parts{access->text(QAccessible::Value),
                      QString::number(state.checked + 2 * state.expanded + 4 * state.focused)};
    if (access->valueInterface())
        parts.append(access->valueInterface()->currentValue().toString());
    return parts.join(u'|');
}

bool isAtItsLimit(QAccessibleInterface *access, bool up)
{
    QAccessibleValueInterface *value = access->valueInterface();
    return value && value->currentValue() == (up ? value->maximumValue() : value->minimumValue());
}

/// Runs an action; false if nothing tells that it did anything.
bool works(QAccessibleInterface *access, QWidget *widget, const QString &action)
{
    if (action == Action::setFocusAction()) {
        access->actionInterface()->doAction(action);
        return QApplication::focusWidget() == widget ||
               QApplication::focusWidget() == widget->focusProxy() ||
               widget->isAncestorOf(QApplication::focusWidget());
    }
    const bool isStep = action == Action::increaseAction() || action == Action::decreaseAction();
    if (isStep && isAtItsLimit(access, action == Action::increaseAction()))
        return true;
    const QString before = stateOf(access);
    const bool isChosen = access->role() == QAccessible::RadioButton && access->state().checked;
    const QPointer<QWidget> alive(widget);
    const AnySignal signal(widget);
    const PopupCloser closer(widget->window());
    access->actionInterface()->doAction(action);
    // Qt's push buttons are clicked a moment later.
    return QTest::qWaitFor(
        [&] {
            if (!alive || action == Action::showMenuAction())
                return !alive || closer.count() > 0;
            if (action == Action::toggleAction())
                return stateOf(access) != before || isChosen;
            return signal.came() || closer.count() > 0 ||
                   (!qobject_cast<QAbstractButton *>(alive) && stateOf(access) != before);
        },
        1000);
}

void collect(QAccessibleInterface *access, QList<QPointer<QWidget>> &found)
{
    auto *widget = qobject_cast<QWidget *>(access->object());
    if (widget && isOwnControl(widget) && !widget->focusProxy())
        found.append(widget);
    for (int i = 0; i < access->childCount(); ++i) {
        if (QAccessibleInterface *child = access->child(i); child && child->isValid())
            collect(child, found);
    }
}

QString describe(QAccessibleInterface *access, const QWidget *widget)
{
    return QLatin1String(widget->metaObject()->className()) + u' ' +
           access->text(QAccessible::Name) + u' ' + QString::number(access->role(), 16);
}

} // namespace

class GalleryActionsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlIsNamedAndDoesWhatItOffers_data();
    void everyControlIsNamedAndDoesWhatItOffers();
};

void GalleryActionsTest::everyControlIsNamedAndDoesWhatItOffers_data()
{
    QTest::addColumn<QString>("id");
    for (const auto &page : pageCatalog())
        QTest::newRow(qPrintable(page.id)) << page.id;
}

void GalleryActionsTest::everyControlIsNamedAndDoesWhatItOffers()
{
    QFETCH(QString, id);
    GalleryApplication application(QStringLiteral("Dark"));
    GalleryWindow window(&application);
    window.show();
    window.showPage(pageIndex(id));
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QList<QPointer<QWidget>> controls;
    collect(QAccessible::queryAccessibleInterface(window.page(pageIndex(id))), controls);
    QVERIFY(!controls.isEmpty());
    QStringList faults;
    for (const QPointer<QWidget> &widget : std::as_const(controls)) {
        QAccessibleInterface *access =
            widget ? QAccessible::queryAccessibleInterface(widget) : nullptr;
        if (!access)
            continue;
        const QString description = describe(access, widget);
        if (access->text(QAccessible::Name).isEmpty())
            faults.append(QStringLiteral("no name: ") + description);
        if (!hasRightRole(access, widget))
            faults.append(QStringLiteral("role: ") + description);
        const QStringList actions =
            access->actionInterface() ? access->actionInterface()->actionNames() : QStringList();
        for (const QString &action : actions) {
            if (widget && widget->isVisible() && widget->isEnabled() &&
                !works(access, widget, action))
                faults.append(action + QStringLiteral(" does nothing: ") + description);
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

ZEL_TEST_MAIN(GalleryActionsTest)
#include "tst_gallery_actions.moc"
