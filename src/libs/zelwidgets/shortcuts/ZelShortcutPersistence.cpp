#include "ViewCtrl.h"
#include "ZelHotKeyMaterials.h"
#include "ZelMouseActionSettings.h"
#include "ZelShortcutGuiHelper.h"
#include "ZelShortcutHandler_p.h"

#include <ZelCore/ZelSettings>

#include <QDebug>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopedValueRollback>

#include <array>
#include <optional>

namespace {

constexpr QLatin1String idField("Id");
constexpr QLatin1String keyField("ZelHotkey");
constexpr QLatin1String textField("Text");
constexpr QLatin1String defaultField("XDefault");
constexpr QLatin1String viewModeField("CameraMoveType");
constexpr QLatin1String dollyField("DollyEInf");

/// An id that is never without a key, lest users lock themselves out.
struct Indispensable
{
    const char *id;
    QKeySequence::StandardKey key;
    const char *message;
};
constexpr std::array indispensables{
    Indispensable{"gen.aUndo", QKeySequence::Undo, "No undo command set. Changed it to default."},
    Indispensable{"gen.bRedo", QKeySequence::Redo, "No redo command set. Changed it to default."},
};

/// The key that takes the place of an empty one.
QString mended(const QString &id, ZelSettings &store)
{
    for (const Indispensable &indispensable : indispensables) {
        if (id != QLatin1String(indispensable.id))
            continue;
        qWarning() << indispensable.message;
        const QString key = QKeySequence(indispensable.key).toString(QKeySequence::PortableText);
        store.setValue(ZelShortcutKeys::encoded(id), key);
        return key;
    }
    return {};
}

QJsonObject asJson(const QString &id, const ShortcutEntry &entry)
{
    return {{idField, id},
            {keyField, entry.currentKey.text()},
            {textField, entry.text},
            {defaultField, entry.defaultKey.text()}};
}

QString asDocument(const ShortcutEntries &entries)
{
    QJsonArray array;
    for (auto entry = entries.constBegin(); entry != entries.constEnd(); ++entry)
        array.append(asJson(entry.key(), entry.value()));
    const auto *view = ViewCtrl::Settings::instance();
    array.append(QJsonObject{{viewModeField, static_cast<int>(view->viewMode())},
                             {dollyField, static_cast<int>(view->dollyZoomInMode())}});
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Indented));
}

/// A number of the document that can be a mode.
std::optional<int> modeOf(const QJsonValue &value)
{
    const int mode = value.toInt(-1);
    return mode >= 0 ? std::optional(mode) : std::nullopt;
}

} // namespace

namespace ZelShortcutKeys {

QString group()
{
    return QStringLiteral("shortcutSettings");
}

QString viewMode()
{
    return QStringLiteral("ViewCtrl");
}

QString encoded(QString id)
{
    return id.replace(u'.', QLatin1String("QQQ")).replace(u'#', QLatin1String("ZZZ"));
}

QString materialId(QString key)
{
    const qsizetype dot = key.indexOf(QLatin1String("QQQ"));
    return dot < 0 ? key : key.replace(dot, 3, QStringLiteral("."));
}

} // namespace ZelShortcutKeys

void ZelShortcutHandler::storeSettings()
{
    ZelSettings store(ZelShortcutKeys::group());
    for (auto entry = d_->entries.cbegin(); entry != d_->entries.cend(); ++entry) {
        const QString key = ZelShortcutKeys::encoded(entry.key());
        store.removeKey(key);
        store.setValue(key, entry->currentKey.text());
    }
    ZelSettings::save();
}

void ZelShortcutHandler::restoreSettings()
{
    ZelMouseActionSettings::instance();
    d_->deleteConflictHandlers();
    {
        const QScopedValueRollback<bool> batch(d_->batchUpdate, true);
        d_->restoreStoredKeys();
        restoreMaterials();
    }
    applyCurrentSettingsToShortcuts();
    ViewCtrl::Settings::instance()->restoreViewCamSettings();
}

void ZelShortcutHandlerPrivate::restoreStoredKeys()
{
    ZelSettings store(ZelShortcutKeys::group());
    for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
        const QVariant stored = store.value(ZelShortcutKeys::encoded(entry.key()));
        if (stored.metaType() != QMetaType::fromType<QString>())
            continue;
        const QString key = stored.toString();
        entry->currentKey = key.isEmpty() ? mended(entry.key(), store) : key;
    }
}

void ZelShortcutHandler::restoreMaterials()
{
    const ZelSettings store(ZelShortcutKeys::group());
    for (const QString &key : store.keys()) {
        const QString id = ZelShortcutKeys::materialId(key);
        if (!ZelHotKeyMaterials::isMaterialId(id) || d_->entries.contains(id))
            continue;
        registerKeyShortcut(id, ZelHotKeyMaterials::materialName(id),
                            QKeySequence(store.value(key).toString(), QKeySequence::NativeText));
    }
}

QString ZelShortcutHandler::exportShortcuts(QTreeWidget *editor)
{
    ShortcutEntries shown = d_->entries;
    if (editor)
        ZelShortcutGuiHelper::readTree(editor, shown);
    d_->rebuildConflictHandlers();
    return asDocument(shown);
}

/// Takes over what a document says.
class ZelShortcutHandlerPrivate::Import
{
public:
    explicit Import(ZelShortcutHandler &handler)
        : handler_(handler)
    {}

    void take(const QJsonArray &array)
    {
        for (const QJsonValue &value : array) {
            const QJsonObject object = value.toObject();
            if (object.contains(viewModeField))
                takeModes(object);
            else
                takeEntry(object) ? ++imported_ : ++failed_;
        }
    }
    void applyModes() const
    {
        auto *view = ViewCtrl::Settings::instance();
        if (!viewMode_)
            return;
        view->setViewMode(static_cast<ViewCtrl::ViewMode>(*viewMode_));
        if (dolly_)
            view->setDollyZoomInMode(static_cast<ViewCtrl::DollyMouseMode>(*dolly_));
    }
    bool looksRight() const { return imported_ >= 2 && imported_ > failed_; }

private:
    void takeModes(const QJsonObject &object)
    {
        viewMode_ = modeOf(object.value(viewModeField));
        dolly_ = modeOf(object.value(dollyField));
    }

    bool takeEntry(const QJsonObject &object)
    {
        const QString id = object.value(idField).toString();
        const QJsonValue key = object.value(keyField);
        if (key.isString() && handler_.changeShortcut(id, key.toString(), false))
            return true;
        if (key.isString() && ZelHotKeyMaterials::isMaterialId(id)) {
            handler_.registerKeyShortcut(id, ZelHotKeyMaterials::materialName(id),
                                         QKeySequence(key.toString(), QKeySequence::NativeText));
            return true;
        }
        qWarning() << "Import: unknown shortcut: " << id << key.toString()
                   << object.value(textField).toString() << object.value(defaultField).toString();
        return false;
    }

    ZelShortcutHandler &handler_;
    int imported_ = 0;
    int failed_ = 0;
    std::optional<int> viewMode_;
    std::optional<int> dolly_;
};

bool ZelShortcutHandler::importShortcuts(const QString &json, QTreeWidget *editor)
{
    const QJsonArray array = QJsonDocument::fromJson(json.toUtf8()).array();
    if (array.isEmpty())
        return false;
    const ShortcutEntries before = d_->entries;
    const QStringList materials = ZelHotKeyMaterials::materialHotKeyIds();
    for (const QString &id : materials) {
        if (editor)
            d_->entries.remove(id);
        else
            ZelHotKeyMaterials::removeMatHotKey(id);
    }
    ZelShortcutHandlerPrivate::Import import(*this);
    import.take(array);
    import.applyModes();
    if (editor) {
        ZelShortcutGuiHelper::buildTree(editor);
        ZelShortcutGuiHelper::dropWhenApplied(editor, materials);
        d_->entries = before;
        // The mode may have read the gestures of the document.
        ViewCtrl::Settings::instance()->applyGestures();
    } else {
        applyCurrentSettingsToShortcuts();
    }
    return import.looksRight();
}
