#include "ScenePanels.h"

#include "viewport/ViewScene.h"

#include <QAction>
#include <QCheckBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

constexpr int colorSide = 14;

QPixmap colorSign(const QColor &color)
{
    QPixmap sign(colorSide, colorSide);
    sign.fill(color);
    return sign;
}

QString nameOf(ViewportRenderer::Quality quality)
{
    switch (quality) {
    case ViewportRenderer::Quality::Draft:
        return StatisticsPanel::tr("draft");
    case ViewportRenderer::Quality::Full:
        return StatisticsPanel::tr("full");
    case ViewportRenderer::Quality::Smooth:
        break;
    }
    return StatisticsPanel::tr("smooth");
}

} // namespace

SceneTreePanel::SceneTreePanel(ViewScene *scene, QWidget *parent)
    : QTreeWidget(parent)
    , scene_(scene)
{
    setObjectName(QStringLiteral("SceneTree"));
    setAccessibleName(tr("Objects of the scene"));
    setHeaderLabels({tr("Object"), tr("Triangles")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionMode(ExtendedSelection);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    fill();
    connect(scene_, &ViewScene::changed, this, &SceneTreePanel::follow);
    connect(this, &QTreeWidget::itemChanged, this, [this](QTreeWidgetItem *item) {
        if (scene_)
            scene_->setVisible(indexOfTopLevelItem(item), item->checkState(0) == Qt::Checked);
    });
    connect(this, &QTreeWidget::itemSelectionChanged, this, &SceneTreePanel::selectChosen);
}

void SceneTreePanel::fill()
{
    for (const ViewObject &object : scene_->objects()) {
        auto *item = new QTreeWidgetItem(
            this, {object.name, QLocale().toString(qlonglong(object.mesh.triangles.size()))});
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    follow();
}

void SceneTreePanel::follow()
{
    const QSignalBlocker blocker(this);
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const ViewObject &object = scene_->object(i);
        topLevelItem(i)->setCheckState(0, object.isVisible ? Qt::Checked : Qt::Unchecked);
        topLevelItem(i)->setData(0, Qt::DecorationRole, colorSign(object.color));
    }
    const QList<int> &selection = scene_->selection();
    if (!selection.contains(indexOfTopLevelItem(currentItem())))
        setCurrentItem(topLevelItem(scene_->selected()), 0, QItemSelectionModel::NoUpdate);
    for (int i = 0; i < topLevelItemCount(); ++i)
        topLevelItem(i)->setSelected(selection.contains(i));
}

void SceneTreePanel::selectChosen()
{
    QList<int> chosen;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (topLevelItem(i)->isSelected())
            chosen.append(i);
    }
    if (scene_)
        scene_->select(chosen);
}

StudioPanel::StudioPanel(ViewScene *scene, QWidget *parent)
    : QListWidget(parent)
{
    setObjectName(QStringLiteral("Studios"));
    setAccessibleName(tr("Studios"));
    for (int i = 0; i < scene->studioCount(); ++i)
        addItem(scene->studio(i).name);
    const auto follow = [this, scene] {
        const QSignalBlocker blocker(this);
        setCurrentRow(scene->currentStudio());
        setEnabled(scene->studiosAreOn());
    };
    follow();
    connect(scene, &ViewScene::studioChanged, this, follow);
    connect(this, &QListWidget::currentRowChanged, scene, &ViewScene::setCurrentStudio);
}

RenderSettingsPanel::RenderSettingsPanel(const QList<QAction *> &switches, QWidget *parent)
    : QWidget(parent)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->setSpacing(8);
    for (QAction *action : switches) {
        auto *box = new QCheckBox(action->toolTip(), this);
        box->setChecked(action->isChecked());
        connect(box, &QCheckBox::toggled, action, &QAction::setChecked);
        connect(action, &QAction::toggled, box, &QCheckBox::setChecked);
        column->addWidget(box);
    }
    column->addStretch(1);
}

StatisticsPanel::StatisticsPanel(QWidget *parent)
    : QWidget(parent)
{
    auto *form = new QFormLayout(this);
    form->setContentsMargins(12, 12, 12, 12);
    for (const QString &name : {tr("Picture"), tr("Quality"), tr("Triangles"), tr("Time"),
                                tr("Longest step"), tr("Pictures")}) {
        auto *number = new QLabel(this);
        number->setTextInteractionFlags(Qt::TextSelectableByMouse);
        form->addRow(name, number);
        numbers_.append(number);
    }
}

void StatisticsPanel::showReport(const ViewportRenderer::Report &report)
{
    const QLocale locale;
    const QStringList texts{
        tr("%1 x %2").arg(report.size.width()).arg(report.size.height()),
        nameOf(report.quality),
        locale.toString(report.triangles),
        tr("%1 ms in %2 steps").arg(locale.toString(report.milliseconds, 'f', 1)).arg(report.steps),
        tr("%1 ms").arg(locale.toString(report.longestStep, 'f', 1)),
        locale.toString(++pictures_),
    };
    for (int i = 0; i < texts.size(); ++i)
        numbers_[i]->setText(texts[i]);
}
