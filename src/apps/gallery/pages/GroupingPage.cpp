#include "GroupingPage.h"

#include <ZelWidgets/ZelAccordionButton>
#include <ZelWidgets/ZelAccordionSeparator>
#include <ZelWidgets/ZelAccordionWidget>
#include <ZelWidgets/ZelCheckBox>
#include <ZelWidgets/ZelCollapsibleList>
#include <ZelWidgets/ZelContentWidget>
#include <ZelWidgets/ZelListWithAddition>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelToolButton>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

QIcon icon(const char *name)
{
    return ZelStyleIcon(QStringLiteral(":/ui/icons/%1.svg").arg(QLatin1String(name)));
}

QWidget *labelled(const QString &name, QWidget *editor)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *label = new QLabel(name, row);
    label->setBuddy(editor);
    editor->setAccessibleName(name);
    layout->addWidget(label, 1);
    layout->addWidget(editor);
    return row;
}

} // namespace

GroupingPage::GroupingPage(QWidget *parent)
    : GalleryPage(parent)
    , lights_({tr("Sun"), tr("Sky"), tr("Key light"), tr("Fill light"), tr("Rim light")})
{
    addCollapsibleList();
    addAccordion();
    addContentWidgets();
    addStretch();
}

void GroupingPage::addCollapsibleList()
{
    QVBoxLayout *section = addSection(
        tr("Collapsible list"), tr("The button at the right collapses the list to a combo box on "
                                   "the same lights; the state is remembered. Both lists show one "
                                   "model: a new light appears in each."));
    auto *row = new QHBoxLayout;
    auto *list = new ZelCollapsibleList(QStringLiteral("GalleryLights"), &lights_);
    list->setHeightRange(fontMetrics().height() * 7, fontMetrics().height() * 10);
    watch(list, &ZelCollapsibleList::currentIndexChanged, QStringLiteral("currentIndexChanged"));
    watch(list, &ZelCollapsibleList::selectionChanged, QStringLiteral("selectionChanged"));
    watch(list, &ZelCollapsibleList::stateChanged, QStringLiteral("stateChanged"));
    auto *rename = new QAction(icon("fonts"), tr("Rename"), list);
    connect(rename, &QAction::triggered, list, [list] {
        list->setState(ZelCollapsibleList::Expanded);
        if (list->currentIndex().isValid())
            list->edit(list->currentIndex());
    });
    list->addButton(rename);
    row->addWidget(list, 1, Qt::AlignTop);

    auto *view = new QListView(this);
    view->setModel(&lights_);
    view->setAccessibleName(tr("All lights"));
    view->setFixedHeight(fontMetrics().height() * 7);
    auto *addition = new ZelListWithAddition(tr("All lights"), tr("Add a light"), view);
    watch(addition, qOverload<>(&ZelListWithAddition::addItem), QStringLiteral("addItem"));
    connect(addition, qOverload<>(&ZelListWithAddition::addItem), this, [this] {
        const int row = lights_.rowCount();
        lights_.insertRow(row);
        lights_.setData(lights_.index(row), tr("Light %1").arg(row + 1));
    });
    row->addLayout(addition, 1);
    section->addLayout(row);
}

QWidget *GroupingPage::createSections()
{
    auto *column = new QWidget(this);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);

    auto *shadows = new ZelAccordionWidget(
        tr("Shadows (remembered)"), QStringLiteral("gallery.shadowsSection"), Accordion::Open);
    shadows->addWidget(new ZelCheckBox(tr("Soft"), static_cast<bool *>(nullptr)));
    shadows->addWidget(labelled(tr("Samples"), new QSpinBox));

    auto *fog = new ZelAccordionWidget(tr("Fog, with a check box"), QString(), Accordion::Closed);
    fog->button()->addCustomCheckBox();
    fog->addWidget(labelled(tr("Name"), new QLineEdit(tr("Morning"))));
    watch(fog->button(), &ZelAccordionButton::customChecked, QStringLiteral("customChecked"));

    auto *off = new ZelAccordionWidget(tr("Disabled"), QString(), Accordion::Closed);
    off->addWidget(new QLabel(tr("Not reached")));
    off->setEnableWidget(false);

    auto *animated = new ZelAnimationAccordionWidget(tr("Animation"), QString(), false, false);
    animated->addWidget(new QLabel(tr("Editors of animations go here.")));

    for (ZelAccordionWidget *section :
         {shadows, fog, off, static_cast<ZelAccordionWidget *>(animated)}) {
        watch(section, &ZelAccordionWidget::widgetVisible, QStringLiteral("widgetVisible"));
        layout->addWidget(section);
    }
    layout->addStretch(1);
    return column;
}

void GroupingPage::addAccordion()
{
    QVBoxLayout *section = addSection(
        tr("Accordion"), tr("Space, Enter or a click on a header opens and closes its section. "
                            "Checking the box of the closed section opens it."));
    auto *row = new QHBoxLayout;
    row->addWidget(createSections(), 2);
    row->addWidget(new ZelAccordionSeparator(this, Qt::Vertical));
    auto *note = new QLabel(tr("A vertical separator at the left, a horizontal one below."), this);
    note->setWordWrap(true);
    auto *right = new QVBoxLayout;
    right->addWidget(note);
    right->addWidget(new ZelAccordionSeparator(this, Qt::Horizontal));
    right->addStretch(1);
    row->addLayout(right, 1);
    section->addLayout(row);
}

void GroupingPage::addContentWidgets()
{
    QVBoxLayout *section = addSection(tr("Content widgets"),
                                      tr("Containers that report when they are shown and hidden."));
    auto *box = new ZelCheckBox(tr("Show the content"), static_cast<bool *>(nullptr));
    box->setChecked(true);
    auto *content = new ZelContentWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(tr("The content"), content));
    watch(content, &ZelContentWidget::visibilityChanged, QStringLiteral("visibilityChanged"));
    connect(box, &QCheckBox::toggled, content, &QWidget::setVisible);
    section->addWidget(box);
    section->addWidget(content);
}
