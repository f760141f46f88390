#include "LabelsPage.h"

#include <ZelCore/ZelMimeTypes>
#include <ZelWidgets/ZelAspectRatioLabel>
#include <ZelWidgets/ZelEditableLabel>
#include <ZelWidgets/ZelFileNameDisplay>
#include <ZelWidgets/ZelFlipLabel>
#include <ZelWidgets/ZelIconLabel>
#include <ZelWidgets/ZelPixmapLabel>
#include <ZelWidgets/ZelSFixedLinkedLabel>
#include <ZelWidgets/ZelSignLabel>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelSvgLabel>
#include <ZelWidgets/ZelWordWrapLabel>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLinearGradient>
#include <QPainter>
#include <QSplitter>
#include <QVBoxLayout>

namespace {

ZelStyleIcon icon(const char *name)
{
    return ZelStyleIcon(QStringLiteral(":/ui/icons/") + QLatin1String(name) +
                        QStringLiteral(".svg"));
}

/// A sunset, wider than high.
QPixmap landscape()
{
    QPixmap pixmap(192, 108);
    QPainter painter(&pixmap);
    QLinearGradient sky(0, 0, 0, 80);
    sky.setColorAt(0, QColor(40, 60, 120));
    sky.setColorAt(1, QColor(240, 150, 90));
    painter.fillRect(pixmap.rect(), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 220, 140));
    painter.drawEllipse(QPoint(130, 66), 16, 16);
    painter.fillRect(QRect(0, 78, 192, 30), QColor(30, 50, 60));
    return pixmap;
}

/// Two panes whose border can be moved, the label in the first.
QSplitter *resizable(QWidget *label, const QString &name)
{
    auto *splitter = new QSplitter;
    splitter->setAccessibleName(name);
    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(label);
    layout->addStretch(1);
    splitter->addWidget(pane);
    auto *rest = new QFrame;
    rest->setFrameShape(QFrame::StyledPanel);
    splitter->addWidget(rest);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({260, 400});
    return splitter;
}

} // namespace

LabelsPage::LabelsPage(QWidget *parent)
    : GalleryPage(parent)
{
    addTexts();
    addWrapping();
    addLinks();
    addIcons();
    addPictures();
    addCaptions();
    addStretch();
}

void LabelsPage::addTexts()
{
    QVBoxLayout *section = addSection(tr("Texts"), tr("Left, right and double clicks are told."));
    auto *row = new QHBoxLayout;
    section->addLayout(row);
    auto *plain = new ZelLabel(tr("Plain"));
    auto *disabled = new ZelLabel(tr("Disabled"));
    disabled->setEnabled(false);
    auto *sign = new ZelSignLabel(QString(QChar(0x00d7)));
    for (QWidget *label :
         {static_cast<QWidget *>(plain), static_cast<QWidget *>(ZelLabel::makeBold(tr("Bold"))),
          static_cast<QWidget *>(disabled), static_cast<QWidget *>(new ZelLabel(tr("Width"))),
          static_cast<QWidget *>(sign), static_cast<QWidget *>(new ZelLabel(tr("Height")))})
        row->addWidget(label);
    row->addStretch(1);
    watch(plain, &ZelLabel::click, QStringLiteral("click"));
    watch(plain, &ZelLabel::rightClick, QStringLiteral("rightClick"));
    watch(plain, &ZelLabel::doubleClick, QStringLiteral("doubleClick"));

    auto *editable = new ZelEditableLabel;
    editable->setText(tr("A double click, F2 or Enter edits this name"));
    section->addWidget(editable);
    watch(editable, &ZelEditableLabel::editingFinished, QStringLiteral("editingFinished"));
}

void LabelsPage::addWrapping()
{
    QVBoxLayout *section =
        addSection(tr("Narrow panes"), tr("Move the handles: the first text is elided and has the "
                                          "whole in its tool tip, the others wrap."));
    auto *elided = new ZelLabel(tr("The beginning of a text that is too long for its pane"));
    elided->setElideMode(true);
    section->addWidget(resizable(elided, tr("Pane of an elided label")));
    auto *wrapped = new ZelWordWrapLabel(
        tr("A text of several lines, which takes the height that it needs at the width that it "
           "has got, and gives it back when there is more room."));
    section->addWidget(resizable(wrapped, tr("Pane of a wrapped label")));
}

void LabelsPage::addLinks()
{
    QVBoxLayout *section =
        addSection(tr("Links"), tr("In the colour that the sheet of the theme gives."));
    auto *link = new ZelLinkLabel(this);
    link->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    link->setText(
        tr("Read about <a href=\"lights\">lights</a> and <a href=\"lenses\">lenses</a>."));
    section->addWidget(link);
    auto *fixed = new ZelSFixedLinkedLabel(tr("<a href=\"more\">Learn more</a>"), QSize(160, 24));
    section->addWidget(fixed);
    watch(link, &QLabel::linkActivated, QStringLiteral("linkActivated"));
    watch(fixed, &QLabel::linkActivated, QStringLiteral("linkActivated"));
}

void LabelsPage::addIcons()
{
    QVBoxLayout *section = addSection(tr("Icons"));
    auto *label = new ZelIconLabel(icon("info"), tr("A text with an icon in front"));
    auto *disabled = new ZelIconLabel(icon("warning"), tr("The same, disabled"));
    disabled->setEnabled(false);
    section->addWidget(label);
    section->addWidget(disabled);
    watch(label, &ZelIconLabel::labelClicked, QStringLiteral("labelClicked"));
    watch(label, &ZelIconLabel::labelRightClicked, QStringLiteral("labelRightClicked"));

    auto *row = new QHBoxLayout;
    for (const int side : {16, 24, 48}) {
        auto *picture = new ZelSvgLabel(icon("eyedropper"), QSize(side, side));
        picture->setAccessibleName(tr("Eye dropper at %1 pixels").arg(side));
        row->addWidget(picture);
    }
    auto *off = new ZelSvgLabel(icon("eyedropper"), QSize(48, 48));
    off->setMode(QIcon::Disabled);
    off->setAccessibleName(tr("Eye dropper, disabled"));
    row->addWidget(off);
    row->addStretch(1);
    section->addLayout(row);
}

void LabelsPage::addPictures()
{
    QVBoxLayout *section = addSection(
        tr("Pictures"), tr("The first can be dragged onto the field; the second is the "
                           "placeholder; the last keeps its ratio in the room that it gets."));
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    auto *dragged = new ZelPixmapLabel(QSize(96, 54));
    dragged->setPixmap(landscape());
    dragged->setDragMimeData(ZelMimeTypes::BACKPLATE, "/pictures/sunset.png");
    dragged->setHighlightHover(true);
    dragged->setToolTip(tr("Sunset, to drag"));
    auto *empty = new ZelPixmapLabel(QSize(54, 54));
    empty->setToolTip(tr("No picture"));
    auto *ratio = new ZelAspectRatioLabel;
    ratio->setPixmap(landscape());
    ratio->setMinimumSize(60, 60);
    ratio->setMaximumHeight(90);
    ratio->setAccessibleName(tr("Sunset at its ratio"));
    auto *target = new ZelFileNameDisplay(ZelFileNameDisplay::Remove);
    target->setAccessibleName(tr("Target of the drag"));
    connect(target, &ZelFileNameDisplay::filenameDropped, target, &ZelFileNameDisplay::setFilename);
    connect(target, &ZelFileNameDisplay::removeClicked, target, &ZelFileNameDisplay::clearFilename);
    watch(target, &ZelFileNameDisplay::filenameDropped, QStringLiteral("filenameDropped"));
    row->addWidget(dragged);
    row->addWidget(empty);
    row->addWidget(target, 1);
    row->addWidget(ratio, 1);
    section->addLayout(row);
}

void LabelsPage::addCaptions()
{
    QVBoxLayout *section =
        addSection(tr("Captions of sections"), tr("Their owner flips them when they are pressed."));
    auto *caption = new ZelFlipLabel(tr("Details"), false);
    auto *content = new ZelWordWrapLabel(tr("What the section holds."));
    content->hide();
    auto *bare = new ZelFlipLabel(tr("Without an arrow"), true);
    bare->setArrowVisible(false);
    auto *disabled = new ZelFlipLabel(tr("Disabled"), true);
    disabled->setDisabled(true);
    section->addWidget(caption);
    section->addWidget(content);
    section->addWidget(bare);
    section->addWidget(disabled);
    connect(caption, &ZelFlipLabel::clicked, content, [caption, content] {
        caption->setOpen(!caption->isOpen());
        content->setVisible(caption->isOpen());
    });
    watch(caption, &ZelFlipLabel::clicked, QStringLiteral("clicked"));
}
