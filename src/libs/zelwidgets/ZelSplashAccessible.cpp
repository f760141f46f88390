#include "ZelSplashAccessible.h"

#include "ZelSplashWindow.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

constexpr int whole = 100;

int percent(const ZelSplashWindow *window)
{
    return qRound(window->progress() * whole);
}

class SplashInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit SplashInterface(QWidget *widget)
        : QAccessibleWidget(widget, QAccessible::ProgressBar)
    {}

    void *interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface *>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? QString::number(percent(splash())) + u'%'
                                          : QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

    QVariant currentValue() const override { return percent(splash()); }
    void setCurrentValue(const QVariant &) override {}
    QVariant maximumValue() const override { return whole; }
    QVariant minimumValue() const override { return 0; }
    QVariant minimumStepSize() const override { return 1; }

private:
    ZelSplashWindow *splash() const { return static_cast<ZelSplashWindow *>(object()); }
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    auto *window = className == QLatin1String("ZelSplashWindow")
                       ? qobject_cast<ZelSplashWindow *>(object)
                       : nullptr;
    return window ? new SplashInterface(window) : nullptr;
}

} // namespace

void ZelSplashAccessible::installFactory()
{
    static const bool installed = [] {
        QAccessible::installFactory(createInterface);
        return true;
    }();
    Q_UNUSED(installed);
}

void ZelSplashAccessible::announceProgress(ZelSplashWindow *window)
{
    QAccessibleValueChangeEvent event(window, percent(window));
    QAccessible::updateAccessibility(&event);
}
