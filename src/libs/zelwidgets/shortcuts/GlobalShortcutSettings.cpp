#include "GlobalShortcutSettings.h"

#include "ZelShortcutHandler.h"

#include <array>

namespace {

struct Named
{
    const char *id;
    const char *text;
};

constexpr std::array categories{
    Named{"cam", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Camera")},
    Named{"cam#ctrl", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Camera Control")},
    Named{"cam#view", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Standard Views")},
    Named{"edit", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Edit")},
    Named{"edit#geo", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Add Geometry")},
    Named{"edit#light", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Add Light")},
    Named{"env", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Environment")},
    Named{"env#bGrnd", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Background")},
    Named{"file", QT_TRANSLATE_NOOP("ZelShortcutHandler", "File")},
    Named{"gen", QT_TRANSLATE_NOOP("ZelShortcutHandler", "General")},
    Named{"if", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Interface")},
    Named{"if#mouse", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Mouse Settings")},
    Named{"mat", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Materials")},
    Named{"mat#graph", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Material Graph")},
    Named{"rt", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Real-time")},
    Named{"ani", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Animation")},
    Named{"matXcopy", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Material Copy")},
};

constexpr std::array overrides{
    Named{"if.hFullScreenTggl", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Full Screen")},
    Named{"if.iPresentationTggl", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Presentation Mode")},
    Named{"if.kCoordLegendTggl", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Coordinate Legend")},
    Named{"if.lGeometryTggl", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Geometry View")},
    Named{"ani.tgglTimeLine", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Animation Timeline")},
    Named{"env#bGrnd.shEnv", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Show Lighting Environment")},
};

struct Later
{
    const char *id;
    const char *text;
    QKeySequence key;
};

/// The shortcuts of views that come up later, so that the editor shows them from the start.
QList<Later> laterShortcuts()
{
    return {
        {"mat#graph.a_MatProperties",
         QT_TRANSLATE_NOOP("ZelShortcutHandler", "Material Properties"), Qt::Key_Space},
        {"mat#graph.b_MatTexture",
         QT_TRANSLATE_NOOP("ZelShortcutHandler", "Materials and Textures"), Qt::Key_M},
        {"mat#graph.c_Ribbon", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Show/Hide Ribbon"),
         Qt::Key_R},
        {"mat#graph.e_PreviewCol", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Preview Color"),
         Qt::Key_C},
        {"mat#graph.f_PreviewAlpha", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Preview Alpha"),
         Qt::Key_A},
        {"mat#graph.g_PreviewBump", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Preview Bump"),
         Qt::Key_B},
        {"mat#graph.h_StopPreview", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Stop Preview"),
         Qt::Key_X},
        {"mat#graph.qClearSelection",
         QT_TRANSLATE_NOOP("ZelShortcutHandler", "Clear Selection"),
         {}},
        {"mat#graph.qDuplicateSelection",
         QT_TRANSLATE_NOOP("ZelShortcutHandler", "Duplicate Selection"),
         {}},
        {"mat#graph.qSelectAllSelection", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Select All"),
         QKeySequence::SelectAll},
        {"mat.dMultiMatCycle", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Cycle Sub-Materials"),
         Qt::SHIFT | Qt::Key_B},
        {"mat#graph.d_ExecGeometryShaders",
         QT_TRANSLATE_NOOP("ZelShortcutHandler", "Execute Geometry Nodes"), Qt::ALT | Qt::Key_G},
        {"mat#graph.d_GraphScreenshot",
         QT_TRANSLATE_NOOP("ZelShortcutHandler", "Save Graph Screenshot"),
         {}},
        {"edit#geo.aAddGrndPln", QT_TRANSLATE_NOOP("ZelShortcutHandler", "Add Ground Plane"),
         Qt::CTRL | Qt::Key_G},
    };
}

constexpr int models = 10;

} // namespace

void ZelShortcutHandler::init(GlobalShortcutSettings &settings)
{
    settings = {};
    for (const Named &category : categories) {
        const QString prefix = QLatin1String(category.id);
        settings.categories.append({prefix, tr(category.text)});
        settings.categoryIndex.insert(prefix, tr(category.text));
    }
    for (const Named &name : overrides)
        settings.nameOverrides.insert(QLatin1String(name.id), tr(name.text));
}

void ZelShortcutHandler::initLaterCreatedShortcuts()
{
    for (const Later &later : laterShortcuts())
        registerKeyShortcut(QLatin1String(later.id), tr(later.text), later.key);
    for (int i = 0; i < models; ++i) {
        // Labels and keys go from 1 to 0, ids from 0 to 9: stored settings know the ids.
        const int digit = (i + 1) % models;
        registerKeyShortcut(QStringLiteral("edit#geo.model%1").arg(i), tr("Model %1").arg(digit),
                            QKeyCombination(Qt::CTRL, static_cast<Qt::Key>(Qt::Key_0 + digit)));
    }
}
