#include "ZelIconLabel.h"

#include "ZelWordWrapLabel.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace {

constexpr int leftMargin = 2;
constexpr int spaceBelowIcon = 1;

} // namespace

/// As large as a line of the text is high.
class ZelIconLabel::Icon : public ZelLabel
{
public:
    explicit Icon(const QIcon &icon)
        : icon_(icon)
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

    void setIcon(const QIcon &icon)
    {
        icon_ = icon;
        update();
    }

    QSize sizeHint() const override
    {
        ensurePolished();
        return QSize(fontMetrics().height(), fontMetrics().height());
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        icon_.paint(&painter, rect(), Qt::AlignCenter,
                    isEnabled() ? QIcon::Normal : QIcon::Disabled);
    }

private:
    QIcon icon_;
};

ZelIconLabel::ZelIconLabel(const QIcon &icon, const QString &text)
    : textLabel_(new ZelWordWrapLabel(text))
    , iconLabel_(new Icon(icon))
    , spacer_(new QSpacerItem(0, spaceBelowIcon, QSizePolicy::Minimum, QSizePolicy::Fixed))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(leftMargin, 0, 0, 0);
    auto *iconLayout = new QVBoxLayout;
    iconLayout->setContentsMargins(0, 0, 0, 0);
    iconLayout->addWidget(iconLabel_);
    iconLayout->addItem(spacer_);
    layout->addLayout(iconLayout);
    layout->setAlignment(iconLayout, Qt::AlignTop);
    textLabel_->setWordWrap(false);
    layout->addWidget(textLabel_);
    for (const ZelLabel *label : {textLabel_, static_cast<ZelLabel *>(iconLabel_)}) {
        connect(label, &ZelLabel::click, this, &ZelIconLabel::labelClicked);
        connect(label, &ZelLabel::rightClick, this, &ZelIconLabel::labelRightClicked);
    }
}

void ZelIconLabel::setIcon(const QIcon &icon)
{
    iconLabel_->setIcon(icon);
}
