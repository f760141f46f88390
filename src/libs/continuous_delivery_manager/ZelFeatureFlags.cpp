#include "ZelFeatureFlags.h"

#include <QByteArray>
#include <QtGlobal>

#include <map>
#include <mutex>
#include <string>

namespace {

struct Overrides
{
    std::mutex mutex;
    std::map<std::string, bool, std::less<>> table;
};

Overrides &overrides()
{
    // Never deleted, for those who ask at the very end of the process.
    static Overrides *const instance = new Overrides;
    return *instance;
}

std::optional<bool> overridden(std::string_view name)
{
    const std::lock_guard lock(overrides().mutex);
    const auto entry = overrides().table.find(name);
    return entry == overrides().table.end() ? std::nullopt : std::optional(entry->second);
}

bool isAsciiAlphanumeric(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

QByteArray variableName(std::string_view feature)
{
    QByteArray name = QByteArray(feature.data(), qsizetype(feature.size())).toUpper();
    for (char &c : name) {
        if (!isAsciiAlphanumeric(c))
            c = '_';
    }
    return "ZEL_FEATURE_" + name;
}

std::optional<bool> fromEnvironment(std::string_view feature)
{
    const QByteArray value = qgetenv(variableName(feature).constData()).trimmed().toLower();
    for (const char *on : {"1", "on", "true", "yes"}) {
        if (value == on)
            return true;
    }
    for (const char *off : {"0", "off", "false", "no"}) {
        if (value == off)
            return false;
    }
    return std::nullopt;
}

} // namespace

bool orv::cdm::isFeatureEnabled(std::string_view name, bool defaultValue)
{
    if (const auto enabled = overridden(name))
        return *enabled;
    return fromEnvironment(name).value_or(defaultValue);
}

void orv::cdm::setFeatureOverride(std::string_view name, std::optional<bool> enabled)
{
    const std::lock_guard lock(overrides().mutex);
    if (enabled)
        overrides().table.insert_or_assign(std::string(name), *enabled);
    else if (const auto entry = overrides().table.find(name); entry != overrides().table.end())
        overrides().table.erase(entry);
}
