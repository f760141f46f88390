#include "TestCase.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/ZelAccordionButton>
#include <ZelWidgets/ZelAccordionContentContainer>
#include <ZelWidgets/ZelAccordionWidget>
#include <ZelWidgets/ZelCollapsibleList>
#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelListWithAddition>
#include <ZelWidgets/ZelToolButton>

#include <QCheckBox>
#include <QLabel>
#include <QListView>
#include <QSignalSpy>
#include <QStringListModel>

class GroupingTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aSectionReportsItsStateOnceBeforeItsFirstShow();
    void aSectionRemembersItsStateAndSurvivesAWrongType();
    void mouseAndKeysOpenASectionAlike();
    void aCustomCheckBoxOpensAClosedSection();
    void aClosedSectionIsAsWideAsItsContent();
    void aListRemembersThatItIsCollapsed();
    void settingTheCurrentIndexIsSilent();
    void theComboBoxAndTheListFollowEachOther();
    void anAdditionTellsOfItsButton();
};

void GroupingTest::aSectionReportsItsStateOnceBeforeItsFirstShow()
{
    for (const auto state : {Accordion::Open, Accordion::Closed}) {
        ZelAccordionWidget section(QStringLiteral("Title"), QString(), state);
        section.addWidget(new QLabel(QStringLiteral("content")));
        QSignalSpy visible(&section, &ZelAccordionWidget::widgetVisible);
        section.show();
        QCOMPARE(visible, (QList<QVariantList>{{state == Accordion::Open}}));
        QCOMPARE(section.findChild<ZelAccordionContentContainer *>()->isVisible(),
                 state == Accordion::Open);
        section.hide();
        section.show();
        QCOMPARE(visible.size(), 1);
    }
}

void GroupingTest::aSectionRemembersItsStateAndSurvivesAWrongType()
{
    const QString key = QStringLiteral("panel.section");
    {
        ZelAccordionWidget section(QStringLiteral("Title"), key, Accordion::Closed);
        section.open();
        QVERIFY(section.button()->isOpen());
    }
    QVERIFY(ZelAccordionButton(QString(), key, false).isOpen());
    ZelSettings().setValue(key, QStringLiteral("no"));
    QVERIFY(ZelAccordionButton(QString(), key, true).isOpen());
    QVERIFY(!ZelAccordionButton(QString(), key, false).isOpen());
}

void GroupingTest::mouseAndKeysOpenASectionAlike()
{
    ZelAccordionWidget section(QStringLiteral("Title"), QString(), Accordion::Closed);
    section.resize(200, 100);
    section.show();
    QSignalSpy visible(&section, &ZelAccordionWidget::widgetVisible);
    QTest::mouseClick(section.button(), Qt::LeftButton);
    QTest::keyClick(section.button(), Qt::Key_Space);
    QTest::keyClick(section.button(), Qt::Key_Return);
    QCOMPARE(visible, (QList<QVariantList>{{true}, {false}, {true}}));
    QVERIFY(section.button()->isOpen());
}

void GroupingTest::aCustomCheckBoxOpensAClosedSection()
{
    ZelAccordionWidget section(QStringLiteral("Title"), QString(), Accordion::Closed);
    ZelAccordionButton *button = section.button();
    QVERIFY(!button->isCustomChecked());
    button->addCustomCheckBox();
    section.show();
    QCOMPARE(button->text(), QString());
    QCOMPARE(button->customCheckBox()->text(), QStringLiteral("Title"));
    QSignalSpy checked(button, &ZelAccordionButton::customChecked);
    button->customCheckBox()->click();
    QVERIFY(button->isOpen() && button->isCustomChecked());
    button->customCheckBox()->click();
    QVERIFY(button->isOpen() && !button->isCustomChecked());
    QCOMPARE(checked, (QList<QVariantList>{{true}, {false}}));
}

void GroupingTest::aClosedSectionIsAsWideAsItsContent()
{
    ZelAccordionWidget section(QStringLiteral("T"), QString(), Accordion::Closed);
    auto *content = new QWidget;
    content->setMinimumWidth(400);
    section.addWidget(content);
    section.show();
    const int width = section.minimumSizeHint().width();
    QVERIFY(width >= 426);
    section.open();
    QCOMPARE(section.minimumSizeHint().width(), width);
}

void GroupingTest::aListRemembersThatItIsCollapsed()
{
    QStringListModel model({QStringLiteral("one"), QStringLiteral("two")});
    const QString name = QStringLiteral("Lights");
    {
        ZelCollapsibleList list(name, &model);
        list.setHeightRange(100, 300);
        list.show();
        const int height = list.height();
        QSignalSpy changes(&list, &ZelCollapsibleList::stateChanged);
        list.toggleState();
        QVERIFY(list.height() < height);
        list.toggleState();
        QCOMPARE(list.minimumHeight(), 100);
        QCOMPARE(list.maximumHeight(), 300);
        list.setState(ZelCollapsibleList::Collapsed);
        list.setState(ZelCollapsibleList::Collapsed);
        QCOMPARE(changes.size(), 3);
    }
    ZelCollapsibleList list(name, &model);
    QCOMPARE(list.state(), ZelCollapsibleList::Collapsed);
    list.show();
    list.setState(ZelCollapsibleList::Expanded);
    QCOMPARE(list.maximumHeight(), QWIDGETSIZE_MAX);
}

void GroupingTest::settingTheCurrentIndexIsSilent()
{
    QStringListModel model({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    ZelCollapsibleList list(QStringLiteral("Silent"), &model);
    QSignalSpy current(&list, &ZelCollapsibleList::currentIndexChanged);
    QSignalSpy selection(&list, &ZelCollapsibleList::selectionChanged);
    list.setCurrentIndex(model.index(2));
    QCOMPARE(list.currentIndex(), model.index(2));
    QCOMPARE(list.currentSelection(), QModelIndexList{model.index(2)});
    list.setState(ZelCollapsibleList::Collapsed);
    QCOMPARE(list.currentSelection(), QModelIndexList{model.index(2)});
    list.setCurrentIndex(model.index(1));
    QCOMPARE(list.currentSelection(), QModelIndexList{model.index(1)});
    QCOMPARE(current.size() + selection.size(), 0);
}

void GroupingTest::theComboBoxAndTheListFollowEachOther()
{
    QStringListModel model({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    ZelCollapsibleList list(QStringLiteral("Follow"), &model);
    list.resize(300, 200);
    list.show();
    auto *view = list.findChild<QListView *>();
    auto *combo = list.findChild<ZelComboBox *>();
    QSignalSpy current(&list, &ZelCollapsibleList::currentIndexChanged);
    QSignalSpy selection(&list, &ZelCollapsibleList::selectionChanged);

    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(model.index(1)).center());
    QCOMPARE(combo->currentIndex(), 1);
    QCOMPARE(current.size(), 1);

    list.setState(ZelCollapsibleList::Collapsed);
    selection.clear();
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(view->currentIndex(), model.index(2));
    QCOMPARE(current.size(), 2);
    QCOMPARE(selection.size(), 1);
}

void GroupingTest::anAdditionTellsOfItsButton()
{
    QWidget panel;
    auto *layout = new ZelListWithAddition(QStringLiteral("Title"), QStringLiteral("Add a light"),
                                           new QListView);
    panel.setLayout(layout);
    QSignalSpy added(layout, qOverload<>(&ZelListWithAddition::addItem));
    auto *button = panel.findChild<ZelToolButton *>();
    QCOMPARE(button->toolTip(), QStringLiteral("Add a light"));
    button->click();
    QCOMPARE(added.size(), 1);
}

ZEL_TEST_MAIN(GroupingTest)
#include "tst_grouping.moc"
