#include "ZelMouseShortcut.h"

#include <QDebug>
#include <QKeySequence>

#include <array>

namespace {

constexpr QLatin1String mark("!#");
constexpr QLatin1String keyMark("#KEY_");
constexpr int shortestText = 5;
constexpr int longTextLength = 6;

constexpr std::array events{"MLC", "MRC", "MCC", "MDC", "MW", "MD"};

struct Modifier
{
    const char *token;
    Qt::KeyboardModifier modifier;
    const char *word;
};
constexpr std::array modifiers{
    Modifier{"ALT", Qt::AltModifier, QT_TRANSLATE_NOOP("ZelMouseShortcut", "Alt")},
    Modifier{"CTRL", Qt::ControlModifier, QT_TRANSLATE_NOOP("ZelMouseShortcut", "Ctrl")},
    Modifier{"SHIFT", Qt::ShiftModifier, QT_TRANSLATE_NOOP("ZelMouseShortcut", "Shift")}};

struct Button
{
    const char *token;
    Qt::MouseButton button;
    const char *word;
};
constexpr std::array buttons{
    Button{"LMB", Qt::LeftButton, QT_TRANSLATE_NOOP("ZelMouseShortcut", "LMB")},
    Button{"RMB", Qt::RightButton, QT_TRANSLATE_NOOP("ZelMouseShortcut", "RMB")},
    Button{"CMB", Qt::MiddleButton, QT_TRANSLATE_NOOP("ZelMouseShortcut", "MMB")}};

bool holdsOnlyKnownModifiers(const QKeyCombination &key)
{
    constexpr Qt::KeyboardModifiers known =
        Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
    return !(key.keyboardModifiers() & ~known);
}

/// The platform's own name of a modifier, or the translated word if that is the same name.
QString modifierName(const Modifier &modifier)
{
    const QString word = QLatin1String(modifier.word);
    QString native = QKeySequence(QKeyCombination(modifier.modifier, Qt::Key_X))
                         .toString(QKeySequence::NativeText);
    native.remove(u'X').remove(u' ').remove(u'+');
    return native.toLower() == word.toLower() ? ZelMouseShortcut::tr(modifier.word) : native;
}

QString portableName(Qt::Key key)
{
    return QKeySequence(key).toString(QKeySequence::PortableText);
}

/// The key behind the key mark; Qt::Key_unknown if there is none.
Qt::Key readKey(const QString &text)
{
    const qsizetype start = text.indexOf(keyMark);
    if (start < 0)
        return Qt::Key_unknown;
    qsizetype end = text.indexOf(u'#', start + 1);
    if (end < 0)
        end = text.size();
    QString name = text.mid(start, end - start);
    name.remove(QLatin1String("KEY_")).remove(u'#').remove(u' ');
    const QKeySequence sequence = QKeySequence::fromString(name, QKeySequence::PortableText);
    return sequence.isEmpty() ? Qt::Key_unknown : sequence[0].key();
}

template <typename Table>
int indexOf(const Table &table, const QString &token)
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (token == QLatin1String(table[i].token))
            return static_cast<int>(i);
    }
    return -1;
}

int eventOf(const QString &token)
{
    for (std::size_t i = 0; i < events.size(); ++i) {
        if (token == QLatin1String(events[i]))
            return static_cast<int>(i);
    }
    return -1;
}

} // namespace

ZelMouseShortcut::ZelMouseShortcut(MouseEventAction event, const QKeyCombination &key,
                                   QFlags<Qt::MouseButton> buttons)
    : event_(event)
    , key_(key)
    , mouseModifiers_(buttons)
{
    sanityCheck();
}

ZelMouseShortcut::ZelMouseShortcut(MouseEventAction event, QFlags<Qt::KeyboardModifier> modifiers,
                                   QFlags<Qt::MouseButton> buttons)
    : ZelMouseShortcut(event, QKeyCombination(modifiers, Qt::Key_unknown), buttons)
{}

void ZelMouseShortcut::sanityCheck() const {}

bool ZelMouseShortcut::clickMatch(Qt::MouseButton button, const QKeyCombination &key) const
{
    if (!holdsOnlyKnownModifiers(key) || mouseModifiers_)
        return false;
    return (event_ == LeftClick && button == Qt::LeftButton) ||
           (event_ == RightClick && button == Qt::RightButton) ||
           (event_ == CentreClick && button == Qt::MiddleButton);
}

bool ZelMouseShortcut::modiferMatch(const QKeyCombination &key,
                                    QFlags<Qt::MouseButton> buttons) const
{
    constexpr Qt::MouseButtons known = Qt::LeftButton | Qt::RightButton | Qt::MiddleButton;
    return holdsOnlyKnownModifiers(key) && mouseModifiers_ == (buttons & known);
}

QString ZelMouseShortcut::exportToString() const
{
    QString text = mark;
    if (event_ < LeftClick || event_ >= None)
        return text;
    text += QLatin1String(events[static_cast<std::size_t>(event_)]) + u'#';
    if (key_.keyboardModifiers()) {
        for (const Modifier &modifier : modifiers) {
            if (key_.keyboardModifiers().testFlag(modifier.modifier))
                text += QLatin1String(modifier.token) + u'#';
        }
        text += u'/';
    } else if (!mouseModifiers_) {
        return text + u'/';
    }
    for (const Button &button : buttons) {
        if (mouseModifiers_.testFlag(button.button))
            text += QLatin1String(button.token) + u'#';
    }
    if (key_.key() != Qt::Key_unknown)
        text += keyMark + portableName(key_.key()) + QLatin1String("# ");
    return text + mark;
}

ZelMouseShortcut ZelMouseShortcut::buildFromExportedString(const QString &text)
{
    if (text.size() < shortestText || !text.contains(u'!') || text == mark)
        return {};
    QString tokens = text;
    tokens = tokens.remove(mark).remove(u'/').toUpper();
    const QStringList parts = tokens.split(u'#', Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return {};
    const int event = eventOf(parts.first());
    if (event < 0) {
        qDebug() << "Action type -1?";
        return {};
    }
    Qt::KeyboardModifiers held;
    Qt::MouseButtons pressed;
    for (const QString &part : parts.mid(1)) {
        if (part.contains(QLatin1String("KEY_")) || part.trimmed().isEmpty())
            continue;
        const int modifier = indexOf(modifiers, part);
        const int button = indexOf(::buttons, part);
        if (modifier >= 0)
            held |= modifiers[static_cast<std::size_t>(modifier)].modifier;
        else if (button >= 0)
            pressed |= ::buttons[static_cast<std::size_t>(button)].button;
        else
            qDebug() << "ZelMouseShortcut - unknown mouse modifier " << part;
    }
    return {static_cast<MouseEventAction>(event), QKeyCombination(held, readKey(text)), pressed};
}

bool ZelMouseShortcut::isMouseShortcut(const QString &text)
{
    return text.contains(mark);
}

bool ZelMouseShortcut::likelyConflict(const QString &a, const QString &b)
{
    return a == b;
}

QString ZelMouseShortcut::publicShortcutText() const
{
    constexpr QLatin1Char separator('+');
    if (event_ < LeftClick || event_ >= None)
        return {};
    QString text;
    for (const Modifier &modifier : modifiers) {
        if (key_.keyboardModifiers().testFlag(modifier.modifier))
            text += modifierName(modifier) + separator;
    }
    if (key_.key() != Qt::Key_unknown)
        text += portableName(key_.key());
    if (!text.isEmpty() && !text.endsWith(separator))
        text += separator;
    for (const Button &button : ::buttons) {
        if (mouseModifiers_.testFlag(button.button))
            text += tr(button.word) + separator;
    }
    switch (event_) {
    case LeftClick:
        return text + tr("LMB");
    case RightClick:
        return text + tr("RMB");
    case CentreClick:
        return text + tr("MMB");
    case DoubleClick:
        return text + (text.size() < longTextLength ? tr("Dbl Click") : tr("Dbl Clk"));
    case Wheel:
        return text + tr("Wheel");
    case Drag:
        break;
    case None:
        return {};
    }
    if (text.endsWith(separator))
        text.chop(1);
    return mouseModifiers_ ? text + u' ' + tr("Drag") : text;
}
