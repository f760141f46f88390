// Splitters that remember their sizes, the handle, side bars and the drag indicator.

#include "TestCase.h"
#include "UserInput.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/ZelDragIndicator>
#include <ZelWidgets/ZelPersistentSplitter>
#include <ZelWidgets/ZelSideBarNavigation>
#include <ZelWidgets/ZelSplitterHandle>
#include <ZelWidgets/ZelStableSplitter>

#include <QApplication>
#include <QCursor>
#include <QLabel>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <memory>

namespace {

QString key()
{
    return QStringLiteral("testSizes");
}

ZelSettings settings()
{
    return ZelSettings(QStringLiteral("ui"));
}

std::unique_ptr<ZelPersistentSplitter> splitter(int parts)
{
    auto splitter = std::make_unique<ZelPersistentSplitter>(key(), Qt::Horizontal, nullptr);
    for (int part = 0; part < parts; ++part)
        splitter->addWidget(new QLabel(QString::number(part)));
    splitter->resize(600, 100);
    return splitter;
}

} // namespace

class SplittersTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizesAreRemembered();
    void storedSizesAreRead_data();
    void storedSizesAreRead();
    void aSplitterThatWasNeverShownStoresNothing();
    void theStableHeightIsDraggedAndKept();
    void heightRangesAreChecked();
    void handlesTellTheWholeWay_data();
    void handlesTellTheWholeWay();
    void theCursorIsTakenBack();
    void keysAreShortDrags();
    void sideBarsAreAsWideAsTheirEntries();
    void theIndicatorLeavesDragsToItsParent();
};

void SplittersTest::sizesAreRemembered()
{
    auto first = splitter(2);
    first->show();
    first->setSizes({400, 200});
    const QList<int> sizes = first->sizes();
    // Hidden and shown again it is as it was.
    first->hide();
    first->show();
    QCOMPARE(first->sizes(), sizes);
    first.reset();
    auto second = splitter(2);
    second->show();
    QCOMPARE(second->sizes(), sizes);
    second.reset();
    // A third part has come.
    auto third = splitter(3);
    third->show();
    QVERIFY(third->sizes()[2] > 0);
}

void SplittersTest::storedSizesAreRead_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QList<int>>("sizes");
    const auto list = [](std::initializer_list<QVariant> entries) {
        return QVariant(QVariantList(entries));
    };
    QTest::newRow("numbers") << list({100, 200}) << QList<int>{100, 200};
    QTest::newRow("some") << list({QStringLiteral("7"), QStringLiteral("x"), 5})
                          << QList<int>{7, 5};
    QTest::newRow("none") << list({QStringLiteral("a"), QStringLiteral("b")}) << QList<int>();
    QTest::newRow("zeros") << list({0, 0}) << QList<int>();
    QTest::newRow("wild") << list({-5, 2'000'000'000}) << QList<int>{0, QWIDGETSIZE_MAX};
    QTest::newRow("text") << QVariant(QStringLiteral("100")) << QList<int>();
    QTest::newRow("nothing") << QVariant() << QList<int>();
}

void SplittersTest::storedSizesAreRead()
{
    QFETCH(const QVariant, stored);
    QTEST(ZelPersistentSplitter::sizesFrom(stored), "sizes");
    settings().setValue(key(), stored);
    auto shown = splitter(2);
    shown->show();
    QVERIFY(shown->sizes()[0] + shown->sizes()[1] > 0);
}

void SplittersTest::aSplitterThatWasNeverShownStoresNothing()
{
    settings().setValue(key(), QVariantList{120, 330});
    splitter(2).reset();
    QCOMPARE(settings().value(key()).toList(), (QVariantList{120, 330}));
}

/// A panel above a stable splitter, as an application lays them out.
class Panel : public QWidget
{
public:
    Panel()
        : panel(new QLabel(QStringLiteral("panel"), this))
    {
        panel->setObjectName(QStringLiteral("Panel"));
        panel->resize(100, 80);
        bar = new ZelStableSplitter(panel, Qt::Vertical, this);
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(panel);
        layout->addWidget(bar);
        layout->addStretch();
        resize(200, 400);
        show();
    }
    QLabel *panel;
    ZelStableSplitter *bar;
};

void SplittersTest::theStableHeightIsDraggedAndKept()
{
    {
        Panel panel;
        QVERIFY(QTest::qWaitForWindowExposed(&panel));
        QCOMPARE(panel.panel->height(), 80);
        panel.bar->setHeightRange(50, 150);
        QWidget *handle = panel.bar->handle(1);
        const QPoint start = handle->mapToGlobal(handle->rect().center());
        QCursor::setPos(start);
        UserInput::press(handle, handle->rect().center());
        for (const int way : {10, 30, 200}) {
            QCursor::setPos(start + QPoint(0, way));
            UserInput::move(handle, handle->mapFromGlobal(start + QPoint(0, way)));
            panel.layout()->activate();
        }
        UserInput::release(handle, handle->rect().center());
        QCOMPARE(panel.panel->height(), 150);
    }
    {
        Panel panel;
        QCOMPARE(panel.panel->height(), 150);
        delete panel.panel;
        panel.bar->setHeightRange(1, 10);
    }
    settings().setValue(QStringLiteral("ZelStableSplitterPanelheight"), QStringLiteral("high"));
    QCOMPARE(Panel().panel->height(), 80);
    settings().setValue(QStringLiteral("ZelStableSplitterPanelheight"), 2'000'000'000);
    QVERIFY(Panel().panel->height() < 10'000);
}

void SplittersTest::heightRangesAreChecked()
{
    Panel panel;
    panel.bar->setHeightRange(0, 100);
    panel.bar->setHeightRange(50, 40);
    QCOMPARE(panel.panel->height(), 80);
    panel.bar->setHeightRange(100, 120);
    QCOMPARE(panel.panel->height(), 100);
    panel.bar->setHeightRange(10, 20);
    QCOMPARE(panel.panel->height(), 20);
}

void SplittersTest::handlesTellTheWholeWay_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::newRow("horizontal") << Qt::Horizontal;
    QTest::newRow("vertical") << Qt::Vertical;
}

void SplittersTest::handlesTellTheWholeWay()
{
    QFETCH(const Qt::Orientation, orientation);
    ZelSplitterHandle handle(orientation, nullptr);
    handle.show();
    const bool isHorizontal = orientation == Qt::Horizontal;
    QCOMPARE(handle.minimumSizeHint(), isHorizontal ? QSize(6, 16) : QSize(16, 6));
    const QSignalSpy started(&handle, &ZelSplitterHandle::dragStarted);
    const QSignalSpy dragged(&handle, &ZelSplitterHandle::dragged);
    const QSignalSpy ended(&handle, &ZelSplitterHandle::dragEnded);
    UserInput::move(&handle, QPoint(50, 50), {}, Qt::NoButton);
    QCOMPARE(dragged.size(), 0);
    UserInput::drag(&handle, QPoint(2, 2), QPoint(12, 42));
    QCOMPARE(started.size(), 1);
    QCOMPARE(ended.size(), 1);
    QCOMPARE(dragged.last().first().toInt(), isHorizontal ? 10 : 40);
    UserInput::move(&handle, QPoint(50, 50), {}, Qt::NoButton);
    QCOMPARE(dragged.last().first().toInt(), isHorizontal ? 10 : 40);
    handle.grab();
}

void SplittersTest::theCursorIsTakenBack()
{
    const auto enter = [](QWidget *widget) {
        QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QCoreApplication::sendEvent(widget, &event);
    };
    auto handle = std::make_unique<ZelSplitterHandle>(Qt::Horizontal, nullptr);
    handle->show();
    enter(handle.get());
    enter(handle.get());
    QVERIFY(QApplication::overrideCursor());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::SplitHCursor);
    handle->hide();
    QVERIFY(!QApplication::overrideCursor());
    handle->show();
    enter(handle.get());
    handle.reset();
    QVERIFY(!QApplication::overrideCursor());
}

void SplittersTest::keysAreShortDrags()
{
    ZelSplitterHandle handle(Qt::Vertical, nullptr);
    handle.show();
    const QSignalSpy dragged(&handle, &ZelSplitterHandle::dragged);
    const QSignalSpy ended(&handle, &ZelSplitterHandle::dragEnded);
    QTest::keyClick(&handle, Qt::Key_Down);
    QTest::keyClick(&handle, Qt::Key_Up, Qt::ShiftModifier);
    QTest::keyClick(&handle, Qt::Key_Left);
    QCOMPARE(dragged.size(), 2);
    QCOMPARE(dragged[0].first().toInt(), 10);
    QCOMPARE(dragged[1].first().toInt(), -1);
    QCOMPARE(ended.size(), 2);
}

void SplittersTest::sideBarsAreAsWideAsTheirEntries()
{
    QWidget parent;
    QListWidget *list = ZelSideBarNavigation::create(&parent);
    list->addItems({QStringLiteral("General"), QStringLiteral("A rather long page title")});
    QVERIFY(ZelSideBarNavigation::isNewSideBarStyle(list));
    QListWidget plain;
    QVERIFY(!ZelSideBarNavigation::isNewSideBarStyle(&plain));
    QVERIFY(!ZelSideBarNavigation::isNewSideBarStyle(nullptr));
    QCOMPARE(list->sizeHint().width(), int(list->sizeHintForColumn(0) * 1.1));
    QCOMPARE(list->focusPolicy(), Qt::NoFocus);
    QTreeWidget *tree = ZelSideBarNavigationTree::create(&parent);
    new QTreeWidgetItem(tree, {QStringLiteral("Rendering")});
    QVERIFY(ZelSideBarNavigationTree::isNewSideBarStyle(tree));
    QVERIFY(tree->isHeaderHidden() && !tree->rootIsDecorated());
    QCOMPARE(tree->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
}

void SplittersTest::theIndicatorLeavesDragsToItsParent()
{
    class Bar : public QWidget
    {
    public:
        int presses = 0;

    protected:
        void mousePressEvent(QMouseEvent *) override { ++presses; }
    };
    Bar bar;
    ZelDragIndicator indicator(&bar);
    bar.show();
    UserInput::press(&indicator, QPoint(1, 1));
    QCOMPARE(bar.presses, 1);
    QVERIFY(indicator.sizeHint().width() >= 2);
    indicator.grab();
}

ZEL_TEST_MAIN(SplittersTest)
#include "tst_splitters.moc"
