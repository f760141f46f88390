// Headers that remember their columns, and the header that rows are dragged by.

#include "TestCase.h"
#include "UserInput.h"
#include "lists/ZelHeaderState.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelDragHeader>
#include <ZelWidgets/ZelPersistentHeaderView>

#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>

#include <memory>
#include <random>

namespace {

using Header = ZelPersistentHeaderView;

QString key()
{
    return QStringLiteral("testColumns");
}

ZelSettings settings()
{
    return ZelSettings(QStringLiteral("ui"));
}

/// A table with a persistent header, which is destroyed as in an application.
class Table
{
public:
    explicit Table(int columns, std::function<bool(int)> predicate = {})
        : model(3, columns)
    {
        for (int column = 0; column < columns; ++column)
            model.setHorizontalHeaderItem(column, new QStandardItem(QString::number(column)));
        header = new Header(key(), Qt::Horizontal, std::move(predicate), &view);
        view.setHorizontalHeader(header);
        lost = std::make_unique<QSignalSpy>(header, &Header::settingsNotRestored);
        view.setModel(&model);
    }

    QStandardItemModel model;
    QTableView view;
    Header *header;
    std::unique_ptr<QSignalSpy> lost;
};

} // namespace

class HeadersTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        IconColorTheme::instance()->loadThemeFile(
            QStringLiteral(":/res/icon_themes/dark_theme.json"));
    }
    void columnsAreRemembered();
    void firstColumnsAreThoseOfThePredicate();
    void otherNumbersOfColumnsAreSurvived_data();
    void otherNumbersOfColumnsAreSurvived();
    void badStatesAreRefused_data();
    void badStatesAreRefused();
    void damagedStatesNeverCrash();
    void aModelThatGoesTakesNothingAlong();
    void theMenuHidesAndShows();
    void dropsGoBetweenSections_data();
    void dropsGoBetweenSections();
    void rowsAreDragged();
};

void HeadersTest::columnsAreRemembered()
{
    {
        Table table(4);
        QCOMPARE(table.lost->size(), 1);
        table.header->moveSection(0, 2);
        table.header->resizeSection(1, 77);
        table.header->setSectionHidden(3, true);
        table.header->setSortIndicator(2, Qt::DescendingOrder);
    }
    Table table(4);
    QCOMPARE(table.lost->size(), 0);
    QCOMPARE(table.header->visualIndex(0), 2);
    QCOMPARE(table.header->sectionSize(1), 77);
    QVERIFY(table.header->isSectionHidden(3));
    QCOMPARE(table.header->sortIndicatorSection(), 2);
    QCOMPARE(table.header->sortIndicatorOrder(), Qt::DescendingOrder);
    QVERIFY(table.header->sectionsMovable() && table.header->sectionsClickable());
}

void HeadersTest::firstColumnsAreThoseOfThePredicate()
{
    {
        Table table(4, Header::showColumns({0, 2}));
        QVERIFY(table.header->isSectionHidden(1) && table.header->isSectionHidden(3));
        QVERIFY(!table.header->isSectionHidden(0) && !table.header->isSectionHidden(2));
        table.header->setHiddenColumns({0});
        QVERIFY(!table.header->isSectionHidden(0));
        table.view.setModel(nullptr);
        table.view.setModel(&table.model);
        QVERIFY(table.header->isSectionHidden(0) && !table.header->isSectionHidden(1));
    }
    // What is stored goes before the predicate.
    Table table(4, Header::hideColumns({1, 2, 3}));
    QVERIFY(table.header->isSectionHidden(0) && !table.header->isSectionHidden(1));
}

void HeadersTest::otherNumbersOfColumnsAreSurvived_data()
{
    QTest::addColumn<int>("columns");
    for (const int columns : {1, 2, 3, 5, 9})
        QTest::addRow("%d", columns) << columns;
}

void HeadersTest::otherNumbersOfColumnsAreSurvived()
{
    QFETCH(const int, columns);
    {
        Table table(4);
        table.header->moveSection(3, 0);
        table.header->resizeSection(0, 61);
        table.header->setSectionHidden(1, true);
    }
    Table table(columns);
    QCOMPARE(table.lost->size(), 0);
    QCOMPARE(table.header->count(), columns);
    QCOMPARE(table.header->sectionSize(0), 61);
    QCOMPARE(table.header->visualIndex(0), columns > 3 ? 1 : 0);
    QCOMPARE(table.header->isSectionHidden(1), columns > 1);
    for (int column = 4; column < columns; ++column) {
        QVERIFY(!table.header->isSectionHidden(column));
        QCOMPARE(table.header->visualIndex(column), column);
    }
    table.view.show();
    table.view.grab();
}

void HeadersTest::badStatesAreRefused_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::newRow("text") << QVariant(QStringLiteral("columns"));
    QTest::newRow("number") << QVariant(7);
    QTest::newRow("empty") << QVariant(QByteArray());
    QTest::newRow("junk") << QVariant(QByteArray("junk that is no state"));
    QTableView rows;
    QStandardItemModel model(2, 2);
    rows.setModel(&model);
    QTest::newRow("of rows") << QVariant(rows.verticalHeader()->saveState());
}

void HeadersTest::badStatesAreRefused()
{
    QFETCH(const QVariant, stored);
    settings().setValue(key(), stored);
    messages().expect(QtWarningMsg, QStringLiteral("stored columns can't be read"));
    Table table(3, Header::hideColumns({0}));
    QCOMPARE(table.lost->size(), 1);
    QVERIFY(!table.header->isSectionHidden(0));
}

void HeadersTest::damagedStatesNeverCrash()
{
    Table table(6);
    table.header->moveSection(5, 1);
    table.header->setSectionHidden(2, true);
    const QByteArray whole = table.header->saveState();
    QVERIFY(ZelHeaderState::read(whole));
    for (qsizetype length = 0; length < whole.size() - 1; ++length) {
        if (const auto state = ZelHeaderState::read(whole.left(length)))
            state->applyTo(*table.header);
    }
    std::mt19937 random(4711);
    for (int run = 0; run < 3000; ++run) {
        QByteArray damaged = whole;
        for (int change = 0; change < 3; ++change)
            damaged[qsizetype(random() % unsigned(whole.size()))] = char(random());
        const auto state = ZelHeaderState::read(damaged);
        if (!state)
            continue;
        state->applyTo(*table.header);
        QVERIFY(table.header->count() == 6 && table.header->length() >= 0);
    }
}

void HeadersTest::aModelThatGoesTakesNothingAlong()
{
    {
        auto model = std::make_unique<QStandardItemModel>(2, 3);
        QTableView view;
        auto *header = new Header(key(), Qt::Horizontal, {}, &view);
        view.setHorizontalHeader(header);
        view.setModel(model.get());
        header->resizeSection(1, 83);
        model.reset();
    }
    Table table(3);
    QCOMPARE(table.header->sectionSize(1), 83);
}

void HeadersTest::theMenuHidesAndShows()
{
    Table table(3);
    table.view.show();
    const auto open = [&]() -> QList<QAction *> {
        Q_EMIT table.header->customContextMenuRequested(QPoint(5, 5));
        const auto menus = table.header->findChildren<QMenu *>();
        return menus.isEmpty() ? QList<QAction *>() : menus.last()->actions();
    };
    QList<QAction *> actions = open();
    QCOMPARE(actions.size(), 3);
    QCOMPARE(actions[1]->text(), QStringLiteral("1"));
    actions[1]->trigger();
    actions[0]->trigger();
    QVERIFY(table.header->isSectionHidden(0) && table.header->isSectionHidden(1));
    actions = open();
    QVERIFY(!actions[0]->isChecked() && actions[2]->isChecked());
    QVERIFY(!actions[2]->isEnabled());
    actions[0]->trigger();
    QVERIFY(!table.header->isSectionHidden(0));
}

void HeadersTest::dropsGoBetweenSections_data()
{
    QTest::addColumn<int>("visual");
    QTest::addColumn<int>("position");
    QTest::addColumn<int>("target");
    // The section of the visual index 3 is dragged; each middle lies at 100.
    QTest::newRow("above, before the middle") << 1 << 99 << 1;
    QTest::newRow("above, at the middle") << 1 << 100 << 2;
    QTest::newRow("below, at the middle") << 5 << 100 << 4;
    QTest::newRow("below, past the middle") << 5 << 101 << 5;
    QTest::newRow("itself") << 3 << 5 << 3;
}

void HeadersTest::dropsGoBetweenSections()
{
    QFETCH(const int, visual);
    QFETCH(const int, position);
    QTEST(ZelDragHeader::targetOf(3, visual, position, 100), "target");
}

void HeadersTest::rowsAreDragged()
{
    QStandardItemModel model(6, 1);
    QTableView view;
    auto *header = new ZelDragHeader(Qt::Vertical, QIcon());
    header->setSectionsMovable(true);
    view.setVerticalHeader(header);
    view.setModel(&model);
    view.resize(300, 400);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    QCOMPARE(header->movingTo(), -1);
    QVERIFY(!header->icon().isNull());
    const auto middle = [&](int row) {
        return QPoint(5, header->sectionViewportPosition(row) + header->sectionSize(row) / 2);
    };
    QWidget *viewport = header->viewport();
    UserInput::press(viewport, middle(1));
    UserInput::move(viewport, middle(2));
    UserInput::move(viewport, middle(4) + QPoint(0, 4));
    QVERIFY(header->isMovingSection());
    QCOMPARE(header->movingFrom(), 1);
    QCOMPARE(header->movingTo(), 4);
    viewport->grab();
    UserInput::release(viewport, middle(4) + QPoint(0, 4));
    QCOMPARE(header->visualIndex(1), 4);
    QCOMPARE(header->movingFrom(), -1);
}

ZEL_TEST_MAIN(HeadersTest)
#include "tst_headers.moc"
