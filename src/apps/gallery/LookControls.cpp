#include "LookControls.h"

#include "GalleryApplication.h"

#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelStyleSheets>

#include <QActionGroup>
#include <QMenu>
#include <QSignalBlocker>

#include <algorithm>

namespace {

constexpr int fontSizes[] = {-1, 8, 9, 10, 11, 12, 14, 16};

} // namespace

QIcon LookControls::icon(const QString &name)
{
    return ZelStyleIcon(QStringLiteral(":/ui/icons/%1.svg").arg(name));
}

void LookControls::addThemes(QMenu *menu, GalleryApplication *application)
{
    auto *group = new QActionGroup(menu);
    for (const auto &[label, key] : ZelStyleSheets::colorThemeList()) {
        QAction *action = menu->addAction(label);
        action->setActionGroup(group);
        action->setCheckable(true);
        action->setChecked(key == application->theme());
        QObject::connect(action, &QAction::triggered, application,
                         [application, key = key] { takeTheme(application, key); });
        QObject::connect(
            application, &GalleryApplication::themeChanged, action,
            [action, key = key](const QString &now) { action->setChecked(key == now); });
    }
}

void LookControls::takeTheme(GalleryApplication *application, const QString &key)
{
    QMetaObject::invokeMethod(
        application, [application, key] { application->setTheme(key); }, Qt::QueuedConnection);
}

void LookControls::takeOtherTheme(GalleryApplication *application)
{
    for (const auto &theme : ZelStyleSheets::colorThemeList()) {
        if (theme.second != application->theme())
            return takeTheme(application, theme.second);
    }
}

FontSizeBox::FontSizeBox(GalleryApplication *application, QWidget *parent)
    : QComboBox(parent)
    , application_(application)
{
    setAccessibleName(tr("Font size"));
    for (const int points : fontSizes)
        addItem(points < 0 ? tr("System") : tr("%1 pt").arg(points));
    follow();
    connect(this, &QComboBox::activated, this, &FontSizeBox::choose);
    connect(application_, &GalleryApplication::fontSizeChanged, this, &FontSizeBox::follow);
}

void FontSizeBox::choose(int row)
{
    const int points = fontSizes[row];
    QMetaObject::invokeMethod(
        application_, [application = application_, points] { application->setFontSize(points); },
        Qt::QueuedConnection);
}

void FontSizeBox::follow()
{
    const auto *found =
        std::find(std::begin(fontSizes), std::end(fontSizes), application_->fontSize());
    const QSignalBlocker blocker(this);
    setCurrentIndex(found == std::end(fontSizes) ? -1
                                                 : static_cast<int>(found - std::begin(fontSizes)));
}
