#include "ZelDockAccessible.h"

#include "docks/ZelDockMenu.h"
#include "docks/ZelDockWidget.h"
#include "docks/ZelDockWidgetTitle.h"

#include <QAccessibleWidget>

namespace {

class TitleBar : public QAccessibleWidget
{
public:
    explicit TitleBar(ZelDockWidgetTitle *title)
        : QAccessibleWidget(title, QAccessible::TitleBar)
    {}

    QString text(QAccessible::Text kind) const override
    {
        const QString text = QAccessibleWidget::text(kind);
        if (!text.isEmpty() || !dock())
            return text;
        if (kind == QAccessible::Name)
            return (title()->groupName() + u' ' + title()->shownTitle()).trimmed();
        if (kind == QAccessible::Description)
            return dock()->isFloating() ? ZelDockWidget::tr("Window of its own")
                                        : ZelDockWidget::tr("Docked");
        return text;
    }

    QStringList actionNames() const override
    {
        return (dock() ? QStringList{showMenuAction()} : QStringList()) +
               QAccessibleWidget::actionNames();
    }

    void doAction(const QString &name) override
    {
        if (name != showMenuAction())
            QAccessibleWidget::doAction(name);
        else if (dock())
            ZelDockMenu::openBelowTitle(dock());
    }

private:
    ZelDockWidgetTitle *title() const { return static_cast<ZelDockWidgetTitle *>(object()); }
    ZelDockWidget *dock() const { return qobject_cast<ZelDockWidget *>(title()->parentWidget()); }
};

} // namespace

void ZelDockAccessible::installFactory()
{
    static const bool installed = [] {
        QAccessible::installFactory([](const QString &name, QObject *object) {
            auto *title = qobject_cast<ZelDockWidgetTitle *>(object);
            const bool isOwn = title && name == QLatin1String("ZelDockWidgetTitle");
            return static_cast<QAccessibleInterface *>(isOwn ? new TitleBar(title) : nullptr);
        });
        return true;
    }();
    Q_UNUSED(installed);
}
