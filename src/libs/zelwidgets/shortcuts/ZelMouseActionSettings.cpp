#include "ZelMouseActionSettings.h"

#include "ZelShortcutHandler.h"

#include <QPointer>

namespace {

using Shortcut = ZelMouseShortcut;

constexpr Qt::KeyboardModifiers none = Qt::NoModifier;
constexpr Qt::KeyboardModifiers alt = Qt::AltModifier;
constexpr Qt::KeyboardModifiers ctrl = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers shift = Qt::ShiftModifier;

struct Row
{
    const char *id;
    const char *text;
    ZelMouseAction::Category category;
    Shortcut::MouseEventAction event;
    Qt::KeyboardModifiers modifiers;
    Qt::MouseButton button = Qt::NoButton;
    Qt::Key heldKey = Qt::Key_unknown;

    Shortcut shortcut() const { return {event, QKeyCombination(modifiers, heldKey), button}; }
};

constexpr auto oneShot = ZelMouseAction::OneShot;
constexpr auto oneWay = ZelMouseAction::OneWay;
constexpr auto dragOnly = ZelMouseAction::DragOnly;

const Row rows[] = {
    {"cam#ctrl.aTumble", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Tumble"), dragOnly,
     Shortcut::Drag, none, Qt::LeftButton},
    {"cam#ctrl.aTumbleAlt", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Tumble (Alternative)"),
     dragOnly, Shortcut::Drag, alt, Qt::LeftButton},
    {"cam#ctrl.bPan", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Pan"), dragOnly, Shortcut::Drag,
     none, Qt::MiddleButton},
    {"cam#ctrl.bPan2", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Pan (Alternative)"), dragOnly,
     Shortcut::Drag, ctrl | shift, Qt::LeftButton},
    {"cam#ctrl.cvDolly", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Dolly"), oneWay,
     Shortcut::Wheel, none},
    {"cam#ctrl.cxDolly2", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Dolly (Alternative)"),
     oneWay, Shortcut::Drag, alt, Qt::RightButton},
    {"cam#ctrl.czFocalLength", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Focal Length"), oneWay,
     Shortcut::Wheel, alt},
    {"cam#ctrl.dPerspective", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Perspective"), dragOnly,
     Shortcut::Drag, alt | shift, Qt::RightButton},
    {"cam#ctrl.ePickPivot", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Select Target"), oneShot,
     Shortcut::RightClick, ctrl | alt},
    {"cam#ctrl.eCenterAndFit", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Center And Fit"),
     oneShot, Shortcut::RightClick, ctrl | alt | shift},
    {"cam#ctrl.gTwist", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Twist"), oneWay,
     Shortcut::Wheel, ctrl | alt},
    {"mat.aEditMaterial", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Edit Material"), oneShot,
     Shortcut::DoubleClick, none},
    {"mat.bSelect", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Select Material"), oneShot,
     Shortcut::LeftClick, shift},
    {"mat.cApplySelected", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Apply Selected"), oneShot,
     Shortcut::RightClick, shift},
    {"mat.dApplyCopy", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Apply Copy"), oneShot,
     Shortcut::RightClick, ctrl | shift},
    {"env.xRotate", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Rotate Environment"), dragOnly,
     Shortcut::Drag, ctrl, Qt::LeftButton},
    {"if#mouse.xShowOnly", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Show Only"), oneShot,
     Shortcut::LeftClick, alt},
    {"if#mouse.zHidePart", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Hide Part"), oneShot,
     Shortcut::LeftClick, ctrl | alt},
    {"if#mouse.aSelect", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Select Object"), oneShot,
     Shortcut::LeftClick, none},
    {"if#mouse.aSelectGroup", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Select Group"), oneShot,
     Shortcut::LeftClick, none, Qt::NoButton, Qt::Key_1},
    {"if#mouse.aSelectModel", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Select Model"), oneShot,
     Shortcut::LeftClick, none, Qt::NoButton, Qt::Key_2},
    {"if#mouse.bSelectAdd", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Add Select Object"),
     oneShot, Shortcut::LeftClick, ctrl},
    {"if#mouse.context", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Context Menu"), oneShot,
     Shortcut::RightClick, none},
    {"if#mouse.marquesel", QT_TRANSLATE_NOOP("ZelMouseActionSettings", "Marquee Selection"),
     dragOnly, Shortcut::Drag, shift, Qt::LeftButton},
};

constexpr QLatin1String tumbleId("cam#ctrl.aTumble");
constexpr QLatin1String alternativeTumbleId("cam#ctrl.aTumbleAlt");

/// The keys that a gesture may hold: modifiers and two digits.
QKeyCombination reduced(QKeyCombination key)
{
    const bool counts = key.key() == Qt::Key_1 || key.key() == Qt::Key_2;
    return QKeyCombination(key.keyboardModifiers(), counts ? key.key() : Qt::Key_unknown);
}

/// The first action below the object, in the order of the children, that fits.
template <typename Fits>
const ZelMouseAction *firstBelow(const QObject *object, Fits &&fits)
{
    for (const QObject *child : object->children()) {
        const auto *action = qobject_cast<const ZelMouseAction *>(child);
        if (action && fits(*action))
            return action;
        if (const ZelMouseAction *below = firstBelow(child, fits))
            return below;
    }
    return nullptr;
}

std::unique_ptr<ZelMouseActionSettings> &table()
{
    static std::unique_ptr<ZelMouseActionSettings> table;
    return table;
}

} // namespace

class ZelMouseActionSettingsPrivate
{
public:
    /// Owns the actions, those that the application adds below it as well.
    QObject parent;
    QPointer<const ZelMouseAction> defaultLeftAction;

    const ZelMouseAction *find(const ZelMouseShortcut &wanted) const
    {
        return firstBelow(&parent, [&wanted](const ZelMouseAction &action) {
            return action.enabled() && action.getShortcut() == wanted;
        });
    }
};

ZelMouseActionSettings::ZelMouseActionSettings()
    : d_(std::make_unique<ZelMouseActionSettingsPrivate>())
{
    for (const Row &row : rows) {
        new ZelMouseAction(QLatin1String(row.id), tr(row.text), row.category, row.shortcut(),
                           &d_->parent);
    }
    findById(alternativeTumbleId)->setEnabled(false);
}

ZelMouseActionSettings::~ZelMouseActionSettings() = default;

const ZelMouseActionSettings *ZelMouseActionSettings::instance()
{
    return nonConstInstance();
}

ZelMouseActionSettings *ZelMouseActionSettings::nonConstInstance()
{
    if (!table())
        table().reset(new ZelMouseActionSettings);
    return table().get();
}

ZelMouseActionSettings *ZelMouseActionSettings::existing()
{
    return table().get();
}

void ZelMouseActionSettings::registerAgain()
{
    const auto actions = d_->parent.findChildren<ZelMouseAction *>();
    // What a former registry decided on is no default.
    for (const Row &row : rows) {
        for (ZelMouseAction *action : actions) {
            if (action->id() == QLatin1String(row.id))
                action->setShortcut(row.shortcut());
        }
    }
    for (ZelMouseAction *action : actions)
        ZelShortcutHandler::instance()->registerOrChangeMouseAction(*action);
}

const ZelMouseAction *ZelMouseActionSettings::findAction(ZelMouseShortcut::MouseEventAction event,
                                                         QFlags<Qt::MouseButton> buttons,
                                                         QKeyCombination key) const
{
    const bool isPlainLeftDrag = event == ZelMouseShortcut::Drag && buttons == Qt::LeftButton &&
                                 key.keyboardModifiers() == Qt::NoModifier;
    if (d_->defaultLeftAction && isPlainLeftDrag)
        return d_->defaultLeftAction;
    return d_->find({event, reduced(key), buttons});
}

const ZelMouseAction *ZelMouseActionSettings::findClickEvent(QFlags<Qt::MouseButton> buttons,
                                                             const QKeyCombination &key) const
{
    if (buttons == Qt::LeftButton)
        return findAction(ZelMouseShortcut::LeftClick, Qt::NoButton, key);
    if (buttons == Qt::RightButton)
        return findAction(ZelMouseShortcut::RightClick, Qt::NoButton, key);
    if (buttons == Qt::MiddleButton)
        return findAction(ZelMouseShortcut::CentreClick, Qt::NoButton, key);
    return nullptr;
}

const ZelMouseAction *ZelMouseActionSettings::findById(const QString &id) const
{
    return firstBelow(&d_->parent,
                      [&id](const ZelMouseAction &action) { return action.id() == id; });
}

const ZelMouseAction *ZelMouseActionSettings::getDefaultLeftMouseAction() const
{
    return d_->defaultLeftAction;
}

void ZelMouseActionSettings::setDefaultLeftMouseAction(const ZelMouseAction *action)
{
    d_->defaultLeftAction = action;
}

void ZelMouseActionSettings::autoSetDefaultMouseAction()
{
    const ZelMouseAction *found = getSettingsNonDefaultLeftMouseAction();
    d_->defaultLeftAction = found ? found : findById(tumbleId);
}

const ZelMouseAction *ZelMouseActionSettings::getSettingsNonDefaultLeftMouseAction() const
{
    return d_->find({ZelMouseShortcut::Drag, Qt::NoModifier, Qt::LeftButton});
}
