// The tree and the icons in its rows.

#include "TestCase.h"
#include "UserInput.h"

#include <ZelWidgets/ZelFontMetrics>
#include <ZelWidgets/ZelShortcutHandler>
#include <ZelWidgets/ZelTreeItemDelegate>
#include <ZelWidgets/ZelTreeView>

#include <QAccessible>
#include <QCursor>
#include <QDropEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QPainter>
#include <QSignalSpy>
#include <QStandardItemModel>

namespace {

constexpr int lockRole = Qt::UserRole + 1;
constexpr int eyeRole = Qt::UserRole + 2;

QIcon plain(const QColor &color)
{
    QPixmap pixmap(12, 12);
    pixmap.fill(color);
    return pixmap;
}

/// Rows with a lock, always there, and an eye that is there while its role is true.
class Delegate : public ZelTreeItemDelegate
{
public:
    explicit Delegate(QAbstractItemView *view)
        : ZelTreeItemDelegate(view)
    {
        addIcon({plain(Qt::green), lockRole, true, true, plain(Qt::red)});
        addIcon({plain(Qt::blue), eyeRole, false, false, QIcon()});
    }
    QString nameAppendix(QModelIndex const &index) const override
    {
        return index.row() == 0 ? QStringLiteral(" (first)") : QString();
    }
    bool shouldDisplayIconsFor(QModelIndex const &index) const override { return index.row() != 2; }
    bool iconClicked(std::size_t icon, QModelIndex const &index) override
    {
        clicks << QStringLiteral("%1 of %2").arg(icon).arg(index.row());
        return true;
    }

    QStringList clicks;
};

/// A shown tree of four rows.
struct Forest
{
    Forest()
        : model(4, 1)
        , delegate(&view)
    {
        for (int row = 0; row < 4; ++row)
            model.setItem(row, new QStandardItem(QString(QChar(u'a' + row))));
        view.setModel(&model);
        view.setItemDelegate(&delegate);
        view.resize(300, 200);
        view.show();
        view.activateWindow();
        QCursor::setPos(view.mapToGlobal(QPoint(0, 0)) + QPoint(0, 190));
    }
    QRect row(int row) const { return view.visualRect(model.index(row, 0)); }
    /// The place of an icon, counted from the right.
    QPoint place(int at, int icon) const
    {
        return {row(at).right() - 1 - 12 - 15 * icon + 6, row(at).center().y() + 1};
    }
    QColor colorAt(const QPoint &point)
    {
        return view.viewport()->grab().toImage().pixelColor(point);
    }
    void click(const QPoint &point)
    {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, point);
    }

    QStandardItemModel model;
    ZelTreeView view;
    Delegate delegate;
};

} // namespace

class TreeViewTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void iconsFollowTheirRoles();
    void clicksGoByFixedPlaces();
    void iconsAreAtTheLeftWhereOneReadsFromTheRight();
    void keysGoFromIconToIcon();
    void iconsOfTheCurrentRowAreToldAsCheckBoxes();
    void lockedRowsArePaintedDisabled();
    void widthFollowsAText();
    void requestsAreTold();
    void dropsGoToTheSelection();
};

void TreeViewTest::init()
{
    TestCase::init();
    ZelShortcutHandler::destroy();
    ZelShortcutHandler::prepareInstance();
}

void TreeViewTest::iconsFollowTheirRoles()
{
    Forest forest;
    QCOMPARE(forest.colorAt(forest.place(0, 0)), QColor(Qt::green));
    QVERIFY(forest.colorAt(forest.place(0, 1)) != QColor(Qt::blue));
    forest.model.item(0)->setData(true, lockRole);
    forest.model.item(0)->setData(true, eyeRole);
    QCOMPARE(forest.colorAt(forest.place(0, 0)), QColor(Qt::red));
    QCOMPARE(forest.colorAt(forest.place(0, 1)), QColor(Qt::blue));
    QVERIFY(forest.colorAt(forest.place(2, 0)) != QColor(Qt::green));
}

void TreeViewTest::clicksGoByFixedPlaces()
{
    Forest forest;
    forest.click(forest.place(1, 0));
    // The eye isn't shown, but its place is its own.
    forest.click(forest.place(1, 1));
    forest.click(forest.place(1, 3));
    forest.click(forest.place(2, 0));
    QCOMPARE(forest.delegate.clicks,
             (QStringList{QStringLiteral("0 of 1"), QStringLiteral("1 of 1")}));
}

void TreeViewTest::iconsAreAtTheLeftWhereOneReadsFromTheRight()
{
    Forest forest;
    forest.view.setLayoutDirection(Qt::RightToLeft);
    const auto mirrored = [&](int row, int icon) {
        const QPoint place = forest.place(row, icon);
        return QPoint(forest.row(row).left() + forest.row(row).right() - place.x(), place.y());
    };
    QCOMPARE(forest.colorAt(mirrored(0, 0)), QColor(Qt::green));
    QVERIFY(forest.colorAt(forest.place(0, 0)) != QColor(Qt::green));
    forest.click(forest.place(1, 1));
    forest.click(mirrored(1, 1));
    QCOMPARE(forest.delegate.clicks, QStringList{QStringLiteral("1 of 1")});
}

void TreeViewTest::keysGoFromIconToIcon()
{
    Forest forest;
    forest.model.item(1)->setData(true, eyeRole);
    forest.view.setCurrentIndex(forest.model.index(1, 0));
    forest.view.setFocus();
    QTRY_VERIFY(forest.view.hasFocus());
    QTest::keyClick(&forest.view, Qt::Key_Space);
    QVERIFY(forest.delegate.clicks.isEmpty());
    const QImage before = forest.view.grab().toImage();
    QTest::keyClick(&forest.view, Qt::Key_Left, Qt::AltModifier);
    QVERIFY(forest.view.grab().toImage() != before);
    QTest::keyClick(&forest.view, Qt::Key_Space);
    QTest::keyClick(&forest.view, Qt::Key_Left, Qt::AltModifier);
    QTest::keyClick(&forest.view, Qt::Key_Space);
    QTest::keyClick(&forest.view, Qt::Key_Right, Qt::AltModifier);
    QTest::keyClick(&forest.view, Qt::Key_Space);
    QCOMPARE(forest.delegate.clicks,
             (QStringList{QStringLiteral("0 of 1"), QStringLiteral("1 of 1"),
                          QStringLiteral("0 of 1")}));
    // Other keys leave the icons, and rows without icons have none to click.
    QTest::keyClick(&forest.view, Qt::Key_Down);
    QTest::keyClick(&forest.view, Qt::Key_Left, Qt::AltModifier);
    QTest::keyClick(&forest.view, Qt::Key_Space);
    QCOMPARE(forest.delegate.clicks.size(), 3);
    // An icon that isn't shown is passed over.
    QTest::keyClick(&forest.view, Qt::Key_Down);
    QTest::keyClick(&forest.view, Qt::Key_Right, Qt::AltModifier);
    QTest::keyClick(&forest.view, Qt::Key_Space);
    QCOMPARE(forest.delegate.clicks.last(), QStringLiteral("0 of 3"));
}

void TreeViewTest::iconsOfTheCurrentRowAreToldAsCheckBoxes()
{
    auto forest = std::make_unique<Forest>();
    QAccessibleInterface *tree = QAccessible::queryAccessibleInterface(&forest->view);
    QVERIFY(tree && tree->tableInterface());
    const int cells = tree->childCount();
    QVERIFY(cells >= 4);
    forest->model.item(1)->setData(true, lockRole);
    forest->view.setCurrentIndex(forest->model.index(1, 0));
    QCOMPARE(tree->childCount(), cells + 2);
    QAccessibleInterface *lock = tree->child(cells);
    QCOMPARE(tree->indexOfChild(lock), cells);
    QCOMPARE(lock->text(QAccessible::Name), QStringLiteral("Icon 1, b"));
    QVERIFY(lock->state().checked && !tree->child(cells + 1)->state().checked);
    QVERIFY(!lock->state().invisible && tree->child(cells + 1)->state().invisible);
    const QPoint place = forest->view.viewport()->mapToGlobal(forest->place(1, 0));
    QVERIFY(tree->childAt(place.x(), place.y()) == lock);
    lock->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    QCOMPARE(forest->delegate.clicks, QStringList{QStringLiteral("0 of 1")});
    forest->view.setFocus();
    QTRY_VERIFY(forest->view.hasFocus());
    QTest::keyClick(&forest->view, Qt::Key_Left, Qt::AltModifier);
    QVERIFY(tree->focusChild() == lock);
    // A row without icons, and then no tree.
    forest->view.setCurrentIndex(forest->model.index(2, 0));
    QVERIFY(!lock->isValid());
    QCOMPARE(tree->childCount(), cells);
    forest.reset();
}

void TreeViewTest::lockedRowsArePaintedDisabled()
{
    Forest forest;
    QPalette palette = forest.view.palette();
    palette.setColor(QPalette::Active, QPalette::Text, Qt::black);
    palette.setColor(QPalette::Inactive, QPalette::Text, Qt::black);
    palette.setColor(QPalette::Disabled, QPalette::Text, Qt::magenta);
    forest.view.setPalette(palette);
    const auto hasMagenta = [&](int row) {
        const QImage image = forest.view.viewport()->grab(forest.row(row)).toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width() / 2; ++x) {
                const QColor color = image.pixelColor(x, y);
                if (color.red() > color.green() + 60 && color.blue() > color.green() + 60)
                    return true;
            }
        }
        return false;
    };
    forest.model.item(1)->setData(true, lockRole);
    forest.model.item(2)->setData(true, lockRole);
    QVERIFY(hasMagenta(1));
    QVERIFY(!hasMagenta(0));
    QVERIFY(!hasMagenta(2));
    forest.view.setCurrentIndex(forest.model.index(1, 0));
    forest.view.clearSelection();
    QVERIFY(!hasMagenta(1));
}

void TreeViewTest::widthFollowsAText()
{
    ZelTreeView tree;
    const QSize hint = tree.sizeHint();
    const QString text = QStringLiteral("As wide as this");
    tree.setSizeConstraintText(text);
    QCOMPARE(tree.sizeHint().width(), ZelFontMetrics(&tree).horizontalAdvance(text));
    QCOMPARE(tree.minimumSizeHint().width(), tree.sizeHint().width());
    QCOMPARE(tree.sizeHint().height(), hint.height());
    tree.setSizeConstraintText(QString());
    QCOMPARE(tree.sizeHint(), hint);
}

void TreeViewTest::requestsAreTold()
{
    Forest forest;
    const QSignalSpy asked(&forest.view, &ZelTreeView::toolTipRequested);
    const QSignalSpy hidden(&forest.view, &ZelTreeView::toolTipHideRequest);
    const auto ask = [&](const QPoint &point) {
        QCursor::setPos(forest.view.viewport()->mapToGlobal(point));
        QHelpEvent event(QEvent::ToolTip, point, QCursor::pos());
        QCoreApplication::sendEvent(&forest.view, &event);
    };
    ask(forest.row(1).center());
    QCOMPARE(asked.size(), 1);
    QCOMPARE(asked.first().first().toModelIndex().row(), 1);
    ask(QPoint(5, 180));
    QCOMPARE(hidden.size(), 1);
    forest.view.hide();
    QVERIFY(hidden.size() >= 2);
}

void TreeViewTest::dropsGoToTheSelection()
{
    class Model : public QStandardItemModel
    {
    public:
        using QStandardItemModel::QStandardItemModel;
        QStringList names;
        bool removesRows = false;
        QStringList mimeTypes() const override { return {QStringLiteral("text/plain")}; }
        bool dropMimeData(const QMimeData *, Qt::DropAction, int, int,
                          const QModelIndex &target) override
        {
            names << target.data().toString();
            if (removesRows && target.parent().isValid())
                removeRows(0, rowCount(target.parent()), target.parent());
            return true;
        }
    };
    Model model;
    auto *parent = new QStandardItem(QStringLiteral("root"));
    for (const char *name : {"x", "y", "z"})
        parent->appendRow(new QStandardItem(QLatin1String(name)));
    model.appendRow(parent);
    ZelTreeView tree;
    tree.setSelectionMode(QAbstractItemView::MultiSelection);
    tree.setModel(&model);
    tree.setExtendDropToSelection(true);
    tree.expandAll();
    tree.resize(300, 200);
    tree.show();
    tree.selectAll();
    const QSignalSpy began(&tree, &ZelTreeView::beginDropSelection);
    QMimeData data;
    data.setText(QStringLiteral("material"));
    const auto dropAt = [&](const QPoint &point) {
        return UserInput::dropOn(tree.viewport(), point, data);
    };
    QVERIFY(dropAt(QPoint(280, 190)));
    QCOMPARE(model.names.size(), 4);
    tree.clearSelection();
    model.names.clear();
    QVERIFY(!dropAt(QPoint(280, 190)));
    QVERIFY(dropAt(tree.visualRect(model.index(1, 0, model.index(0, 0))).center()));
    QCOMPARE(model.names, QStringList{QStringLiteral("y")});
    QCOMPARE(began.size(), 2);
    // Targets that go while others take the drop are left out.
    tree.selectAll();
    model.names.clear();
    model.removesRows = true;
    QVERIFY(dropAt(QPoint(280, 190)));
    QVERIFY(model.names.contains(QStringLiteral("x")) && model.names.size() <= 2);
}

ZEL_TEST_MAIN(TreeViewTest)
#include "tst_tree_view.moc"
