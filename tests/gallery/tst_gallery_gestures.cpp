#include "TestCase.h"

#include "UserInput.h"
#include "pages/GestureView.h"
#include "pages/MouseGesturesPage.h"

#include <ZelWidgets/ViewCtrl>
#include <ZelWidgets/ZelShortcutHandler>

#include <QComboBox>
#include <QLabel>
#include <QTreeWidget>

#include <memory>

/// What the page of mouse gestures names.
class GalleryGesturesTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theViewNamesTheActionOfEachEvent();
    void aGestureByHandIsAnswered();
    void aPresetRewritesTheTable();

private:
    std::unique_ptr<MouseGesturesPage> page_;
};

void GalleryGesturesTest::init()
{
    TestCase::init();
    ZelShortcutHandler::prepareInstance();
    ViewCtrl::Settings::instance()->setViewMode(ViewCtrl::ViewMode::Mode0);
    page_ = std::make_unique<MouseGesturesPage>();
    page_->show();
}

void GalleryGesturesTest::cleanup()
{
    page_.reset();
    ZelShortcutHandler::destroy();
    TestCase::cleanup();
}

void GalleryGesturesTest::theViewNamesTheActionOfEachEvent()
{
    auto *view = page_->findChild<GestureView *>();
    const QPoint place(40, 40);
    const auto named = [view](const char *id) {
        return view->text().contains(QLatin1Char('(') + QLatin1String(id) + QLatin1Char(')'));
    };
    QTest::mouseClick(view, Qt::RightButton, Qt::ControlModifier | Qt::AltModifier, place);
    QVERIFY(named("cam#ctrl.ePickPivot"));
    UserInput::drag(view, place, place + QPoint(60, 0), Qt::ShiftModifier);
    QVERIFY(named("if#mouse.marquesel"));
    UserInput::wheel(view, 1, Qt::AltModifier);
    QVERIFY(named("cam#ctrl.czFocalLength"));
    QTest::mouseDClick(view, Qt::LeftButton, {}, place);
    QVERIFY(named("mat.aEditMaterial"));
    UserInput::drag(view, place, place + QPoint(60, 0), {}, Qt::RightButton);
    QVERIFY(view->text().contains(QLatin1String("no action")));
}

void GalleryGesturesTest::aGestureByHandIsAnswered()
{
    const auto *found = page_->findChild<QLabel *>(QStringLiteral("GestureFound"));
    auto *digit = page_->findChild<QComboBox *>(QStringLiteral("GestureDigit"));
    QVERIFY(found->text().contains(QLatin1String("(if#mouse.aSelect)")));
    digit->setCurrentIndex(1);
    QVERIFY(found->text().contains(QLatin1String("(if#mouse.aSelectGroup)")));
    digit->setCurrentIndex(3);
    QVERIFY(found->text().contains(QLatin1String("(if#mouse.aSelect)")));
}

void GalleryGesturesTest::aPresetRewritesTheTable()
{
    auto *mode = page_->findChild<QComboBox *>(QStringLiteral("GestureMode"));
    const auto *table = page_->findChild<QTreeWidget *>();
    QCOMPARE(table->topLevelItemCount(), 24);
    QCOMPARE(table->topLevelItem(0)->text(1), QStringLiteral("LMB Drag"));
    mode->setFocus();
    QTest::keyClick(mode, Qt::Key_End);
    QCOMPARE(ViewCtrl::Settings::instance()->viewMode(), ViewCtrl::ViewMode::Mode13);
    QCOMPARE(table->topLevelItem(0)->text(1), QStringLiteral("MMB Drag"));
}

ZEL_TEST_MAIN(GalleryGesturesTest)
#include "tst_gallery_gestures.moc"
