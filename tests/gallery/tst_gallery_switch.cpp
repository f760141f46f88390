#include "TestCase.h"

#include "GalleryApplication.h"
#include "GalleryWindow.h"
#include "PageCatalog.h"
#include "Screenshots.h"
#include "desk/DeskWindow.h"

#include <ZelWidgets/WorkSpaceHandler>
#include <ZelWidgets/ZelDockWidget>
#include <ZelWidgets/ZelMenu>

#include <QDir>
#include <QImage>
#include <QProcess>

/// A theme that is switched to has to look exactly as if the application had started in it.
class GallerySwitchTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageLooksAsInAFreshStart();
    void aMenuThatWasOpenInTheSwitchOpensInTheNewTheme();

private:
    QString freshPictures(const QString &theme) const;
    void comparePages(GalleryApplication *application, const QString &light, const QString &dark);
    void compareWorkSpaces(GalleryApplication *application, const QString &light);
    static bool isPicture(const QImage &picture, const QString &fresh, const QString &name);
    int countDifferences(GalleryWindow *window, const QString &theme, const QString &fresh) const;
};

QString GallerySwitchTest::freshPictures(const QString &theme) const
{
    const QString target = folder() + u'/' + theme;
    QProcess gallery;
    gallery.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    gallery.start(QStringLiteral(ZEL_GALLERY),
                  {QStringLiteral("--theme"), theme, QStringLiteral("--screenshots"), target,
                   QStringLiteral("--settings"), folder() + QStringLiteral("/fresh.json")});
    const bool finished = gallery.waitForFinished(270000) && gallery.exitCode() == 0;
    return finished ? target : QString();
}

bool GallerySwitchTest::isPicture(const QImage &picture, const QString &fresh, const QString &name)
{
    const QImage expected = QImage(fresh + u'/' + name).convertToFormat(QImage::Format_RGB32);
    const QImage actual = picture.convertToFormat(QImage::Format_RGB32);
    if (!expected.isNull() && expected == actual)
        return true;
    const QString kept = QDir::current().filePath(QStringLiteral("differs-") + name);
    actual.save(kept);
    expected.save(kept + QStringLiteral("-fresh.png"));
    qInfo() << "differs from a fresh start:" << kept;
    return false;
}

int GallerySwitchTest::countDifferences(GalleryWindow *window, const QString &theme,
                                        const QString &fresh) const
{
    int differing = 0;
    for (int i = 0; i < pageCatalog().size(); ++i) {
        const QString name = pageCatalog()[i].id + u'-' + theme.toLower() + QStringLiteral(".png");
        differing += isPicture(grabPage(window, i), fresh, name) ? 0 : 1;
    }
    return differing;
}

void GallerySwitchTest::everyPageLooksAsInAFreshStart()
{
    const QString light = freshPictures(QStringLiteral("Light"));
    const QString dark = freshPictures(QStringLiteral("Dark"));
    QVERIFY(!light.isEmpty());
    QVERIFY(!dark.isEmpty());

    QApplication::setCursorFlashTime(0);
    GalleryApplication application(QStringLiteral("Dark"));
    comparePages(&application, light, dark);
    compareWorkSpaces(&application, light);
}

void GallerySwitchTest::comparePages(GalleryApplication *application, const QString &light,
                                     const QString &dark)
{
    GalleryWindow window(application);
    window.setLogVisible(false);
    window.show();
    // All pages have been seen before the switch, and all but one are hidden during it.
    window.createAllPages();

    application->setTheme(QStringLiteral("Light"));
    QCOMPARE(countDifferences(&window, QStringLiteral("Light"), light), 0);
    application->setTheme(QStringLiteral("Dark"));
    QCOMPARE(countDifferences(&window, QStringLiteral("Dark"), dark), 0);
    // The second time visible widgets get no style event any more.
    application->setTheme(QStringLiteral("Light"));
    QCOMPARE(countDifferences(&window, QStringLiteral("Light"), light), 0);
}

void GallerySwitchTest::compareWorkSpaces(GalleryApplication *application, const QString &light)
{
    DeskWindow desk(application);
    desk.show();
    for (const DefaultWorkSpaceInfo &workSpace : WorkSpaceHandler::getDefaultWorkSpaces()) {
        application->setTheme(QStringLiteral("Dark"));
        chooseWorkSpace(&desk, workSpace.id);
        application->setTheme(QStringLiteral("Light"));
        // Statistics are never the same.
        if (!desk.dock("StatisticsDock")->isHidden())
            continue;
        const QString name = workSpace.id + QStringLiteral("-light.png");
        QVERIFY2(isPicture(grabDesk(&desk), light, name), qPrintable(name));
    }
}

void GallerySwitchTest::aMenuThatWasOpenInTheSwitchOpensInTheNewTheme()
{
    GalleryApplication application(QStringLiteral("Dark"));
    QWidget window;
    window.show();
    ZelMenu menu(&window);
    menu.addAction(QStringLiteral("Entry"));
    const auto openedPicture = [&] {
        menu.popup(window.mapToGlobal(QPoint()));
        QCoreApplication::processEvents();
        return menu.isVisible() ? menu.grab().toImage() : QImage();
    };
    const QImage dark = openedPicture();
    QVERIFY(!dark.isNull());
    application.setTheme(QStringLiteral("Light"));
    const QImage light = openedPicture();
    QVERIFY(!light.isNull() && light != dark);
    application.setTheme(QStringLiteral("Dark"));
    QCOMPARE(openedPicture(), dark);
    menu.close();
    QTRY_VERIFY(!menu.isVisible());
}

ZEL_TEST_MAIN(GallerySwitchTest)
#include "tst_gallery_switch.moc"
