#include "IconRedirect.h"

#include <QStringList>

#include <array>
#include <utility>

namespace {

QIcon::Mode modeOf(const QString &words)
{
    static constexpr std::array<std::pair<const char *, QIcon::Mode>, 4> byPriority{{
        {"selected", QIcon::Selected},
        {"disabled", QIcon::Disabled},
        {"normal", QIcon::Normal},
        {"hover", QIcon::Active},
    }};
    for (const auto &[word, mode] : byPriority) {
        if (words.contains(QLatin1String(word)))
            return mode;
    }
    return QIcon::Normal;
}

QIcon::State stateOf(const QString &words)
{
    // "inactive" holds "active" and overrides it.
    if (words.contains(QLatin1String("inactive")))
        return QIcon::Off;
    return words.contains(QLatin1String("active")) ? QIcon::On : QIcon::Off;
}

} // namespace

std::optional<IconRedirect> IconRedirect::parse(const QString &text)
{
    QString plain = text;
    plain.remove(QLatin1Char('\r')).remove(QLatin1Char('\t'));
    const QStringList lines = plain.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (lines.isEmpty())
        return std::nullopt;
    IconRedirect redirect;
    redirect.target = lines.at(0);
    if (lines.size() > 1) {
        redirect.mode = modeOf(lines.at(1));
        redirect.state = stateOf(lines.at(1));
    }
    return redirect;
}
