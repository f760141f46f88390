#include "gradient/ZelGradientMenu.h"

#include "gradient/ZelGradientCommands.h"

#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientDisplay>

#include <QMenu>

QMenu *ZelGradientMenu::make(ZelGradientDisplay *display)
{
    namespace Commands = ZelGradientCommands;
    auto *menu = new QMenu(display);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString &text, bool isEnabled, auto command) {
        QAction *action = menu->addAction(text, display, [display, command] { command(display); });
        action->setEnabled(isEnabled);
        return action;
    };
    const ZelGradient *gradient = display->gradient();
    const bool hasStops = gradient && gradient->stops() > 0;
    add(ZelGradientDisplay::tr("Position..."), gradient && gradient->selected(),
        &Commands::askForPosition);
    add(ZelGradientDisplay::tr("Delete Stop"), Commands::canRemoveSelected(gradient),
        &Commands::removeSelected)
        ->setShortcut(QKeySequence(Qt::Key_Delete));
    menu->addSeparator();
    add(ZelGradientDisplay::tr("Reverse"), hasStops, &Commands::reverse);
    add(ZelGradientDisplay::tr("Distribute Evenly"), hasStops, &Commands::distributeEvenly);
    menu->addSeparator();
    add(ZelGradientDisplay::tr("Copy Gradient"), hasStops, &Commands::copy);
    add(ZelGradientDisplay::tr("Paste Gradient"), Commands::canPaste(), &Commands::paste);
    return menu;
}
