#include "ZelRecordedKey.h"

#include <QKeyEvent>

namespace {

constexpr int firstDeadKey = Qt::Key_Dead_Grave;
constexpr int lastDeadKey = Qt::Key_Dead_Longsolidusoverlay;

bool standsAlone(int key)
{
    switch (key) {
    case 0:
    case Qt::Key_unknown:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_Mode_switch:
    case Qt::Key_Multi_key:
        return false;
    default:
        return key < firstDeadKey || key > lastDeadKey;
    }
}

bool isForeignLetter(int key)
{
    return key > 0xff && key < Qt::Key_Escape && QChar::isLetter(static_cast<char32_t>(key)) &&
           QChar::script(static_cast<char32_t>(key)) != QChar::Script_Latin;
}

/// The key of the place on a Latin keyboard; 0 where the platform counts places otherwise.
int latinKey(quint32 scanCode)
{
#ifdef Q_OS_MACOS
    Q_UNUSED(scanCode)
    return 0;
#else
#ifndef Q_OS_WIN
    constexpr quint32 firstCode = 8;
    scanCode -= qMin(scanCode, firstCode);
#endif
    struct Row
    {
        quint32 start;
        QLatin1String keys;
    };
    constexpr Row rows[] = {{16, QLatin1String("QWERTYUIOP[]")},
                            {30, QLatin1String("ASDFGHJKL;'`")},
                            {43, QLatin1String("\\ZXCVBNM,./")}};
    for (const Row &row : rows) {
        const auto place = static_cast<qint64>(scanCode) - row.start;
        if (place >= 0 && place < row.keys.size())
            return row.keys.at(place).unicode();
    }
    return 0;
#endif
}

/// Whether Shift has done its work when the text was made: "!" is a key of its own.
bool isUsedUpByText(const QString &text)
{
    return !text.isEmpty() && text.at(0).isPrint() && !text.at(0).isLetterOrNumber() &&
           !text.at(0).isSpace();
}

} // namespace

std::optional<QKeyCombination> ZelRecordedKey::combination(const QKeyEvent &event)
{
    int key = event.key();
    if (!standsAlone(key))
        return std::nullopt;
    Qt::KeyboardModifiers modifiers =
        event.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier |
                             Qt::MetaModifier | Qt::KeypadModifier);
    if (key == Qt::Key_Backtab) {
        key = Qt::Key_Tab;
        modifiers |= Qt::ShiftModifier;
    } else if (isUsedUpByText(event.text())) {
        modifiers &= ~Qt::ShiftModifier;
    }
    if (isForeignLetter(key)) {
        if (const int latin = latinKey(event.nativeScanCode()))
            key = latin;
    }
#ifdef Q_OS_MACOS
    // The arrows count as keys of the keypad there.
    if (key >= Qt::Key_Left && key <= Qt::Key_Down)
        modifiers &= ~Qt::KeypadModifier;
#endif
    return QKeyCombination(modifiers, static_cast<Qt::Key>(key));
}
