#include "ZelStyleSwitch.h"

#include "ZelHiddenPolish.h"
#include "ZelWidgetPolish.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

namespace ZelStyleSwitch {
namespace {

// Sorts the widgets of the application: parents before children, as fonts and palettes go from the
// one to the other.
class Collector
{
public:
    explicit Collector(HiddenWidgets hidden)
        : hidden_(hidden)
    {}

    void visit(QWidget *widget)
    {
        now.emplace_back(widget);
        const bool leaveChildren = hidden_ == HiddenWidgets::Later && !widget->isVisible();
        ZelWidgetPolish::Widgets left;
        for (QObject *object : widget->children()) {
            if (!object->isWidgetType())
                continue;
            auto *child = static_cast<QWidget *>(object);
            if (leaveChildren && !child->isWindow())
                leave(child, left);
            else
                visit(child);
        }
        if (!left.empty())
            later.push_back({widget, std::move(left)});
    }

    ZelWidgetPolish::Widgets now;
    std::vector<ZelHiddenPolish::Page> later;

private:
    void leave(QWidget *widget, ZelWidgetPolish::Widgets &left)
    {
        left.emplace_back(widget);
        for (QObject *object : widget->children()) {
            if (!object->isWidgetType())
                continue;
            auto *child = static_cast<QWidget *>(object);
            if (child->isWindow())
                visit(child);
            else
                leave(child, left);
        }
    }

    HiddenWidgets hidden_;
};

} // namespace

void apply(const QString &sheet, HiddenWidgets hidden)
{
    ZelHiddenPolish::instance().forget();
    if (sheet.isEmpty() || qApp->styleSheet().isEmpty()) {
        qApp->setStyleSheet(sheet);
        return;
    }
    install(sheet);
    polishWidgets(hidden);
}

void polishWidgets(HiddenWidgets hidden)
{
    Collector collector(hidden);
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (!widget->parentWidget())
            collector.visit(widget);
    }
    ZelHiddenPolish::instance().take(std::move(collector.later));
    for (const QPointer<QWidget> &widget : collector.now)
        ZelWidgetPolish::polish(widget);
}

// The style forgets the rules of all widgets, and so setStyleSheet() repolishes none.
void install(const QString &sheet)
{
    if (sheet.isEmpty() || qApp->styleSheet().isEmpty()) {
        qApp->setStyleSheet(sheet);
        return;
    }
    QStyle *style = QApplication::style();
    style->unpolish(qApp);
    qApp->setStyleSheet(sheet);
    style->polish(qApp);
}

void finish()
{
    ZelHiddenPolish::instance().finish();
}

} // namespace ZelStyleSwitch
