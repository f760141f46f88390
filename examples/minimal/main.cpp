// The least that an application does: start order, a window, a button that switches the theme.

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelResources>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelStyleSheets>
#include <ZelWidgets/ZelmoraStyle>

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

namespace {

void switchTheme()
{
    const bool dark = ZelStyleSheets::colorThemeFromSettings() == QStringLiteral("Dark");
    const QString other = dark ? QStringLiteral("Light") : QStringLiteral("Dark");
    ZelStyleSheets::updateColorThemeSettings(other);
    ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(other, QString(), false);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    zelmorawidgets_init_resources();
    HandleSvgInStyle::prepareHandleSvgIcons();
    QApplication::setStyle(new ZelmoraStyle);
    ZelStyleSheets::updateColorTheme(false);

    QWidget window;
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel(QStringLiteral("A label with <a href=\"#\">a link</a>")));
    auto *button = new ZelPushButton(ZelStyleIcon(QStringLiteral(":/ui/icons/sun.svg")),
                                     QStringLiteral("Switch theme"));
    button->setProperty("rank", QStringLiteral("Primary"));
    QObject::connect(button, &QPushButton::clicked, &switchTheme);
    layout->addWidget(button);
    window.show();
    return QApplication::exec();
}
