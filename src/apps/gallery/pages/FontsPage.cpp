#include "FontsPage.h"

#include <ZelWidgets/ZelFontMetrics>
#include <ZelWidgets/ZelFontSizedWidget>
#include <ZelWidgets/ZelHyperLinkStyler>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelTextPainterStyle>

#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace {

/// A sized widget that shows its area.
class SizedArea : public ZelFontSizedWidget
{
public:
    SizedArea(unsigned int width, unsigned int height, QWidget *parent)
        : ZelFontSizedWidget(parent)
    {
        setSizeHint(width, height);
        setMinimumSizeHint(width, height);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        auto *label = new QLabel(QStringLiteral("%1 \u00d7 %2").arg(width).arg(height), this);
        label->setAlignment(Qt::AlignCenter);
        label->setFrameShape(QFrame::Box);
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        // The label's own hint would take the place of the font units.
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        layout->addWidget(label);
    }
};

void setRow(QFormLayout *form, int row, const QString &name, const QString &value,
            const QColor &color = {})
{
    if (row >= form->rowCount())
        form->addRow(name, new QLabel);
    auto *label = qobject_cast<QLabel *>(form->itemAt(row, QFormLayout::FieldRole)->widget());
    label->setText(color.isValid()
                       ? QStringLiteral("<span style=\"background-color:%1\">"
                                        "&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;&nbsp;</span> %2")
                             .arg(color.name(), value)
                       : value);
}

} // namespace

FontsPage::FontsPage(QWidget *parent)
    : GalleryPage(parent)
{
    addMetrics();
    addSizedWidgets();
    addCarriers();
    addButtons();
    addStretch();
    updateValues();
}

void FontsPage::addMetrics()
{
    QVBoxLayout *section =
        addSection(tr("Font units"), tr("Choose another font size above: all sizes follow."));
    metrics_ = new QFormLayout;
    section->addLayout(metrics_);
    auto *edit = new QLineEdit(tr("A line edit in the sheet's font"), this);
    edit->setAccessibleName(tr("Sample text"));
    section->addWidget(edit);
    watch(edit, &QLineEdit::textChanged, QStringLiteral("textChanged"));
}

void FontsPage::addSizedWidgets()
{
    QVBoxLayout *section =
        addSection(tr("Widgets sized in font units"),
                   tr("So many widths of an M by so many lines: they grow with the font."));
    auto *row = new QHBoxLayout;
    row->addWidget(new SizedArea(10, 2, this));
    row->addWidget(new SizedArea(16, 4, this));
    row->addWidget(new SizedArea(24, 3, this));
    row->addStretch(1);
    section->addLayout(row);
}

void FontsPage::addCarriers()
{
    QVBoxLayout *section = addSection(
        tr("Colour carriers"), tr("Widgets that are never shown and bring colours of the sheet "
                                  "into code and into the palette."));
    carriers_ = new QFormLayout;
    section->addLayout(carriers_);
    auto *link =
        new QLabel(tr("A label with <a href=\"#link\">a link</a> in the palette's colour."), this);
    link->setTextInteractionFlags(Qt::TextBrowserInteraction);
    watch(link, &QLabel::linkActivated, QStringLiteral("linkActivated"));
    section->addWidget(link);
}

void FontsPage::addButtons()
{
    QVBoxLayout *section =
        addSection(tr("Ranked push buttons"), tr("The properties \"rank\" and \"dimension\" choose "
                                                 "the look."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    int row = 0;
    for (const QString &dimension :
         {QStringLiteral("Small"), QStringLiteral("Medium"), QStringLiteral("Large")}) {
        int column = 0;
        grid->addWidget(new QLabel(dimension, this), row, column++);
        for (const QString &rank :
             {QStringLiteral("Primary"), QStringLiteral("Secondary"), QStringLiteral("Tertiary")}) {
            for (const bool enabled : {true, false}) {
                // The icon's colours are made for the grounds of the theme, not for the accent.
                const QIcon icon = rank == QStringLiteral("Primary")
                                       ? QIcon()
                                       : ZelStyleIcon(QStringLiteral(":/ui/icons/save.svg"));
                auto *button = new ZelPushButton(icon, enabled ? rank : tr("Disabled"), this);
                button->setProperty("rank", rank);
                button->setProperty("dimension", dimension);
                button->setEnabled(enabled);
                watch(button, &QPushButton::clicked, QStringLiteral("clicked"));
                grid->addWidget(button, row, column++);
            }
        }
        ++row;
    }
    grid->setColumnStretch(7, 1);
    section->addLayout(grid);
}

void FontsPage::updateValues()
{
    ensurePolished();
    const ZelFontMetrics metrics(this);
    const struct
    {
        QString name;
        int value;
    } values[] = {
        {QStringLiteral("getZelmoraFontSizeSetting()"),
         ZelFontMetrics::getZelmoraFontSizeSetting()},
        {QStringLiteral("getApplicationFontSize()"), ZelFontMetrics::getApplicationFontSize()},
        {QStringLiteral("actualZelmoraFontSize()"), ZelFontMetrics::actualZelmoraFontSize()},
        {QStringLiteral("height()"), metrics.height()},
        {QStringLiteral("editorHeight()"), metrics.editorHeight()},
        {QStringLiteral("widthM()"), metrics.widthM()}};
    int row = 0;
    for (const auto &value : values)
        setRow(metrics_, row++, value.name, QString::number(value.value));

    ZelTextPainterStyle painterStyle;
    painterStyle.ensurePolished();
    ZelHyperLinkStyler links;
    links.ensurePolished();
    const struct
    {
        QString name;
        QColor color;
    } colors[] = {{QStringLiteral("hyperLinkColor"), links.getHyperLinkColor()},
                  {QStringLiteral("hyperLinkVisitedColor"), links.getHyperLinkVisitedColor()},
                  {QStringLiteral("fillColor"), painterStyle.getFillColor()},
                  {QStringLiteral("borderColor"), painterStyle.getBorderColor()},
                  {QStringLiteral("textColor"), painterStyle.getTextColor()}};
    row = 0;
    for (const auto &color : colors)
        setRow(carriers_, row++, color.name, color.color.name(QColor::HexArgb), color.color);
}
