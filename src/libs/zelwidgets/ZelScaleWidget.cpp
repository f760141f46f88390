#include "ZelScaleWidget.h"

#include "ZelAspect.h"

#include <ZelWidgets/ZelDoubleSliderEdit>
#include <ZelWidgets/ZelFlipLabel>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelToolButton>

#include <QDebug>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

constexpr double sliderMaximum = 2;
constexpr float largestScale = 10000;

bool isRatio(float ratio)
{
    return std::isfinite(ratio) && ratio != 0;
}

struct Limits
{
    float minimum = 0;
    float maximum = largestScale;

    float bounded(float value) const { return std::max(minimum, std::min(value, maximum)); }
};

} // namespace

class ZelScaleWidgetPrivate
{
public:
    template <typename Caption>
    ZelDoubleSliderEdit *newRow(Caption caption, float *number);
    void makeOpenForm(const QString &text);
    void showNumbers();
    void yFollows() { y = yLimits.bounded(ZelAspect::heightFor(x, ratio)); }
    void xFollows() { x = xLimits.bounded(ZelAspect::widthFor(y, ratio)); }
    void ratioFollows();
    /// Refuses what is no ratio.
    bool takeRatio(float newRatio);

    QWidget *widget;
    ZelFlipLabel *closedLabel;
    ZelDoubleSliderEdit *xyRow;
    QWidget *openForm;
    ZelFlipLabel *openLabel;
    ZelToolButton *linkButton;
    ZelDoubleSliderEdit *xRow;
    ZelDoubleSliderEdit *yRow;
    float xy = 1;
    float x = 1;
    float y = 1;
    float ratio = 1;
    bool isOpen = false;
    Limits xLimits;
    Limits yLimits;
};

template <typename Caption>
ZelDoubleSliderEdit *ZelScaleWidgetPrivate::newRow(Caption caption, float *number)
{
    auto *row = new ZelDoubleSliderEdit(caption, 0, sliderMaximum, number, xLimits.minimum,
                                        xLimits.maximum, nullptr, nullptr, false);
    row->setParent(widget);
    return row;
}

void ZelScaleWidgetPrivate::makeOpenForm(const QString &text)
{
    openForm = new QWidget(widget);
    openLabel = new ZelFlipLabel(text, true);
    linkButton = new ZelToolButton(ZelToolButton::Flat, openForm);
    linkButton->setCheckable(true);
    linkButton->setChecked(true);
    linkButton->setIcon(ZelStyleIcon(QStringLiteral(":ui/icons/link")));
    linkButton->setToolTip(ZelScaleWidget::tr("Lock Aspect"));
    xRow = newRow(ZelScaleWidget::tr("X"), &x);
    yRow = newRow(ZelScaleWidget::tr("Y"), &y);
    auto *head = new QHBoxLayout;
    head->addWidget(openLabel);
    head->addStretch();
    head->addWidget(linkButton);
    auto *layout = new QVBoxLayout(openForm);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(head);
    layout->addWidget(xRow);
    layout->addWidget(yRow);
    openForm->hide();
}

void ZelScaleWidgetPrivate::showNumbers()
{
    xy = x;
    for (ZelDoubleSliderEdit *row : {xyRow, xRow, yRow})
        row->updateValue();
}

void ZelScaleWidgetPrivate::ratioFollows()
{
    const auto newRatio = static_cast<float>(ZelAspect::ofSize(x, y));
    if (isRatio(newRatio))
        ratio = newRatio;
}

bool ZelScaleWidgetPrivate::takeRatio(float newRatio)
{
    if (isRatio(newRatio))
        ratio = newRatio;
    else
        qWarning() << "A ratio has to be finite and not zero:" << newRatio << widget->objectName();
    return isRatio(newRatio);
}

ZelScaleWidget::ZelScaleWidget(QString const &text, QWidget *parent)
    : QWidget(parent)
    , d_(std::make_unique<ZelScaleWidgetPrivate>())
{
    d_->widget = this;
    d_->closedLabel = new ZelFlipLabel(text, false);
    d_->xyRow = d_->newRow(static_cast<QWidget *>(d_->closedLabel), &d_->xy);
    d_->makeOpenForm(text);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(d_->xyRow);
    layout->addWidget(d_->openForm);
    connect(d_->closedLabel, &ZelFlipLabel::clicked, this, &ZelScaleWidget::widgetOpen);
    connect(d_->openLabel, &ZelFlipLabel::clicked, this, &ZelScaleWidget::widgetClose);
    connect(d_->xyRow, &ZelDoubleSliderEdit::valueUpdated, this, &ZelScaleWidget::xyUpdated);
    connect(d_->xRow, &ZelDoubleSliderEdit::valueUpdated, this, &ZelScaleWidget::xUpdated);
    connect(d_->yRow, &ZelDoubleSliderEdit::valueUpdated, this, &ZelScaleWidget::yUpdated);
}

ZelScaleWidget::~ZelScaleWidget()
{
    // The rows are bound to numbers in here.
    delete d_->xyRow;
    delete d_->openForm;
}

float ZelScaleWidget::scaleX() const
{
    return d_->x;
}

float ZelScaleWidget::scaleY() const
{
    return d_->y;
}

float ZelScaleWidget::aspectRatio() const
{
    return d_->ratio;
}

bool ZelScaleWidget::keepAspectRatio() const
{
    return d_->linkButton->isChecked();
}

bool ZelScaleWidget::isOpen() const
{
    return d_->isOpen;
}

void ZelScaleWidget::open(bool open)
{
    if (open == d_->isOpen)
        return;
    d_->isOpen = open;
    ZelFlipLabel *left = open ? d_->closedLabel : d_->openLabel;
    ZelFlipLabel *entered = open ? d_->openLabel : d_->closedLabel;
    const bool hadFocus = left->hasFocus();
    d_->openForm->setVisible(open);
    d_->xyRow->setVisible(!open);
    if (hadFocus)
        entered->setFocus(Qt::OtherFocusReason);
}

void ZelScaleWidget::set(float x, float y, float ratio)
{
    d_->takeRatio(ratio);
    d_->x = x;
    d_->y = y;
    d_->showNumbers();
}

void ZelScaleWidget::setAspectRatio(float ratio)
{
    if (!d_->takeRatio(ratio) || !keepAspectRatio())
        return;
    const float before = d_->y;
    d_->yFollows();
    d_->showNumbers();
    if (d_->y != before)
        Q_EMIT scaleUpdated(d_->x, d_->y);
}

void ZelScaleWidget::setKeepAspectRatio(bool keep)
{
    d_->linkButton->setChecked(keep);
}

void ZelScaleWidget::setAutoScaleRange(bool autoScale, bool growRange)
{
    for (ZelDoubleSliderEdit *row : {d_->xyRow, d_->xRow, d_->yRow})
        row->setAutoScaleRange(autoScale, growRange);
}

void ZelScaleWidget::setLimits(bool rangesToo, float xMinimum, float xMaximum, float yMinimum,
                               float yMaximum)
{
    d_->xLimits = {xMinimum, xMaximum};
    d_->yLimits = {yMinimum, yMaximum};
    for (ZelDoubleSliderEdit *row : {d_->xyRow, d_->xRow, d_->yRow}) {
        const Limits &limits = row == d_->yRow ? d_->yLimits : d_->xLimits;
        row->setLimits(limits.minimum, limits.maximum);
        if (rangesToo)
            row->setRange(limits.minimum, limits.maximum);
    }
}

void ZelScaleWidget::xyUpdated()
{
    d_->x = d_->xy;
    d_->yFollows();
    d_->showNumbers();
    Q_EMIT scaleUpdated(d_->x, d_->y);
}

void ZelScaleWidget::xUpdated()
{
    if (keepAspectRatio())
        d_->yFollows();
    else
        d_->ratioFollows();
    d_->showNumbers();
    Q_EMIT scaleUpdated(d_->x, d_->y);
}

void ZelScaleWidget::yUpdated()
{
    if (keepAspectRatio())
        d_->xFollows();
    else
        d_->ratioFollows();
    d_->showNumbers();
    Q_EMIT scaleUpdated(d_->x, d_->y);
}

void ZelScaleWidget::widgetOpen()
{
    open(true);
}

void ZelScaleWidget::widgetClose()
{
    open(false);
}
