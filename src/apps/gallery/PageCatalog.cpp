#include "PageCatalog.h"

#include "pages/ActionsPage.h"
#include "pages/AnimationCurvePage.h"
#include "pages/ButtonsPage.h"
#include "pages/ColorDialogPage.h"
#include "pages/ColorInputsPage.h"
#include "pages/ColorListsPage.h"
#include "pages/ColorPlanesPage.h"
#include "pages/ColorValuesPage.h"
#include "pages/ColorWidgetsPage.h"
#include "pages/ConflictsPage.h"
#include "pages/CropPage.h"
#include "pages/CurveEditorPage.h"
#include "pages/DialogsPage.h"
#include "pages/DialsPage.h"
#include "pages/FieldsPage.h"
#include "pages/FontsPage.h"
#include "pages/GradientPage.h"
#include "pages/GroupingPage.h"
#include "pages/HeadersPage.h"
#include "pages/IconListPage.h"
#include "pages/IconsPage.h"
#include "pages/LabelsPage.h"
#include "pages/MenusPage.h"
#include "pages/MessageBoxesPage.h"
#include "pages/MouseGesturesPage.h"
#include "pages/NotificationsPage.h"
#include "pages/OldCurvePage.h"
#include "pages/ParameterPanelPage.h"
#include "pages/PlainWidgetsPage.h"
#include "pages/ProgressPage.h"
#include "pages/RectItemPage.h"
#include "pages/ShortcutsPage.h"
#include "pages/SizesPage.h"
#include "pages/SlidersPage.h"
#include "pages/StyleSheetPage.h"
#include "pages/TextsPage.h"
#include "pages/ThemePage.h"
#include "pages/TreePage.h"
#include "pages/VideoFramesPage.h"
#include "pages/WindowsPage.h"

#include <QCoreApplication>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("PageCatalog", source);
}

template <typename Page>
GalleryPage *make()
{
    return new Page;
}

} // namespace

const QList<PageEntry> &pageCatalog()
{
    static const QList<PageEntry> pages{
        {QStringLiteral("theme"), text("Theme"),
         text("Palette, contrast and every icon in both themes"), QStringLiteral("theme"),
         &make<ThemePage>},
        {QStringLiteral("icons"), text("Icons and engines"),
         text("Icon families, redirects, pinned icons and a live document"),
         QStringLiteral("icons"), &make<IconsPage>},
        {QStringLiteral("fonts"), text("Fonts and carriers"),
         text("Font units, colours carried by the sheet, ranked buttons"), QStringLiteral("fonts"),
         &make<FontsPage>},
        {QStringLiteral("stylesheet"), text("Style sheet"),
         text("The finished sheet, with an editor that finds broken rules"),
         QStringLiteral("stylesheet"), &make<StyleSheetPage>},
        {QStringLiteral("plain"), text("Plain Qt widgets"),
         text("Every common Qt widget under the application's sheet"), QStringLiteral("widgets"),
         &make<PlainWidgetsPage>},
        {QStringLiteral("buttons"), text("Buttons"),
         text("Tool buttons, menu buttons, switches and check boxes in each state"),
         QStringLiteral("check"), &make<ButtonsPage>},
        {QStringLiteral("labels"), text("Labels"),
         text("Eliding and wrapping labels, links, icons and pictures"), QStringLiteral("book"),
         &make<LabelsPage>},
        {QStringLiteral("texts"), text("Text and files"),
         text("Line edits, combo boxes, search fields, files and folders"),
         QStringLiteral("folder"), &make<TextsPage>},
        {QStringLiteral("menus"), text("Menus and tool bars"),
         text("Entries that stay open, submenus, tips of entries, icon sizes, separators"),
         QStringLiteral("menu"), &make<MenusPage>},
        {QStringLiteral("fields"), text("Number fields"),
         text("Fields bound to numbers, display units, spin boxes and times"),
         QStringLiteral("gear"), &make<FieldsPage>},
        {QStringLiteral("grouping"), text("Grouping"),
         text("Collapsible list, accordion sections and content widgets"),
         QStringLiteral("window_collapse"), &make<GroupingPage>},
        {QStringLiteral("messages"), text("Message boxes"),
         text("Each kind, timed default, no dialogs, don't show again"), QStringLiteral("warning"),
         &make<MessageBoxesPage>},
        {QStringLiteral("parameters"), text("Parameter panel"),
         text("Forty rows in sections, units that switch live, ranges that follow, their numbers"),
         QStringLiteral("sliders"), &make<ParameterPanelPage>},
        {QStringLiteral("sliders"), text("Sliders"),
         text("Sliders of real and whole numbers, bound to numbers of the page"),
         QStringLiteral("sliders"), &make<SlidersPage>},
        {QStringLiteral("sizes"), text("Size and coordinates"),
         text("Sizes with a locked aspect, geographic positions"), QStringLiteral("link"),
         &make<SizesPage>},
        {QStringLiteral("dials"), text("Dials, wheels, scale"),
         text("Angles, thumb wheels, scales and groups that flip open"), QStringLiteral("gear"),
         &make<DialsPage>},
        {QStringLiteral("video"), text("Video frames"),
         text("A video becomes a numbered series of pictures"), QStringLiteral("play"),
         &make<VideoFramesPage>},
        {QStringLiteral("progress"), text("Progress"),
         text("Progress dialogs, an observer of real work, the splash window"),
         QStringLiteral("refresh"), &make<ProgressPage>},
        {QStringLiteral("crop"), text("Crop"),
         text("Cutting a picture to an aspect ratio, on the page and in a dialog"),
         QStringLiteral("window_expand"), &make<CropPage>},
        {QStringLiteral("notifications"), text("Notifications"),
         text("A strip of actions in the order of their priority, triggered by index"),
         QStringLiteral("info"), &make<NotificationsPage>},
        {QStringLiteral("dialogs"), text("Credentials and confirmations"),
         text("Network credentials, a new password, deleting items, the frameless dialog"),
         QStringLiteral("lock"), &make<DialogsPage>},
        {QStringLiteral("colorvalues"), text("Colour values"),
         text("One colour in all spaces side by side, with its name and its temperature"),
         QStringLiteral("palette"), &make<ColorValuesPage>},
        {QStringLiteral("colorinputs"), text("Colour inputs and sliders"),
         text("One colour in every space, channel by channel, with and without display gamma"),
         QStringLiteral("palette"), &make<ColorInputsPage>},
        {QStringLiteral("colorplanes"), text("Spectrum displays"),
         text("A plane of saturation and value with its hues, a triangle in a ring of hues"),
         QStringLiteral("multi_color"), &make<ColorPlanesPage>},
        {QStringLiteral("colordialog"), text("Colour dialog"),
         text("For one colour or several, with alpha, with a library, modal, and what the owner "
              "hears"),
         QStringLiteral("eyedropper"), &make<ColorDialogPage>},
        {QStringLiteral("colorlists"), text("Swatches and sub-colours"),
         text("Colours that are kept, palettes, and lists of named sub-colours"),
         QStringLiteral("palette"), &make<ColorListsPage>},
        {QStringLiteral("colorwidgets"), text("Colour widgets and eye dropper"),
         text("Fields that open the dialog and take drops, old and new, colours from the screen"),
         QStringLiteral("eyedropper"), &make<ColorWidgetsPage>},
        {QStringLiteral("gradient"), text("Gradient"),
         text("Stops, opacity, slopes and colours of a gradient, live in two editors"),
         QStringLiteral("sliders"), &make<GradientPage>},
        {QStringLiteral("curves"), text("Curve editor"),
         text(
             "Two curves with gaps and tangents, decorators, context actions, exact numbers, undo"),
         QStringLiteral("sliders"), &make<CurveEditorPage>},
        {QStringLiteral("animationcurve"), text("Animation curve"),
         text("A recorded motion that a curve follows, played while it is edited"),
         QStringLiteral("play"), &make<AnimationCurvePage>},
        {QStringLiteral("oldcurve"), text("Old curve view"),
         text("The simple view: vertices to be dragged, grid, frame and line"),
         QStringLiteral("sliders"), &make<OldCurvePage>},
        {QStringLiteral("rectitem"), text("Rect item and snapping"),
         text("A rectangle that is dragged over a view and snaps to its corners and edges"),
         QStringLiteral("window_collapse"), &make<RectItemPage>},
        {QStringLiteral("iconlist"), text("Icon list"),
         text("Thumbnails by the ten thousand: zoom, rename, copy, drag out and in"),
         QStringLiteral("icons"), &make<IconListPage>},
        {QStringLiteral("tree"), text("Tree"),
         text("A scene whose objects are locked, hidden and given materials"),
         QStringLiteral("list_toggle_mode"), &make<TreePage>},
        {QStringLiteral("headers"), text("Headers and splitters"),
         text("Columns, rows, sizes and heights as they are left, side bars"),
         QStringLiteral("sliders"), &make<HeadersPage>},
        {QStringLiteral("windows"), text("Windows"),
         text("Placement, modal dialogs, tool tips, hover and the other services"),
         QStringLiteral("windows"), &make<WindowsPage>},
        {QStringLiteral("shortcuts"), text("Shortcuts"),
         text("The editor of keys and mouse gestures, with conflicts, import and export"),
         QStringLiteral("gear"), &make<ShortcutsPage>},
        {QStringLiteral("conflicts"), text("Conflicts"),
         text("Views and a tool window that share keys; who is meant, and why"),
         QStringLiteral("warning"), &make<ConflictsPage>},
        {QStringLiteral("actions"), text("Actions"),
         text("States shared by menu, buttons and tool bar, hot keys off, changes from a thread"),
         QStringLiteral("check"), &make<ActionsPage>},
        {QStringLiteral("gestures"), text("Mouse gestures"),
         text("A viewport that names the action of each mouse event, and the camera's presets"),
         QStringLiteral("move_up"), &make<MouseGesturesPage>},
    };
    return pages;
}

int pageIndex(const QString &name)
{
    const QList<PageEntry> &pages = pageCatalog();
    for (int i = 0; i < pages.size(); ++i) {
        if (pages[i].id.compare(name, Qt::CaseInsensitive) == 0 ||
            pages[i].title.compare(name, Qt::CaseInsensitive) == 0)
            return i;
    }
    return -1;
}
