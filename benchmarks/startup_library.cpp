// A bare window in the order of start that an application follows.

#include "FirstPaint.h"

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/ZelStyleSheets>
#include <ZelWidgets/ZelmoraStyle>

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    HandleSvgInStyle::prepareHandleSvgIcons();
    QApplication::setStyle(new ZelmoraStyle);
    if (!ZelStyleSheets::updateColorTheme(false))
        return 1;
    FirstPaint window;
    window.show();
    return QApplication::exec();
}
