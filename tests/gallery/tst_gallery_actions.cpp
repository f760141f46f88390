#include "TestCase.h"

#include "ControlWalk.h"
#include "GalleryApplication.h"
#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "PageCatalog.h"

#include <QAccessible>

class GalleryActionsTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlIsNamedAndDoesWhatItOffers_data();
    void everyControlIsNamedAndDoesWhatItOffers();
};

void GalleryActionsTest::everyControlIsNamedAndDoesWhatItOffers_data()
{
    QTest::addColumn<QString>("id");
    for (const auto &page : pageCatalog())
        QTest::newRow(qPrintable(page.id)) << page.id;
}

void GalleryActionsTest::everyControlIsNamedAndDoesWhatItOffers()
{
    QFETCH(QString, id);
    GalleryApplication application(QStringLiteral("Dark"));
    GalleryWindow window(&application);
    window.show();
    window.showPage(pageIndex(id));
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QList<QPointer<QWidget>> controls =
        ControlWalk::controlsIn(QAccessible::queryAccessibleInterface(window.page(pageIndex(id))));
    QVERIFY(!controls.isEmpty());
    QStringList faults;
    for (const QPointer<QWidget> &widget : controls)
        faults += ControlWalk::faultsOf(widget);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

ZEL_TEST_MAIN(GalleryActionsTest)
#include "tst_gallery_actions.moc"
