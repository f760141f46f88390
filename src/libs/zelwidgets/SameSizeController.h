#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QFlags>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QWidget>

#include <functional>

class QObjectPrivate;

/// Gives several widgets one size: the largest of their hints. Each widget's sizeHint() passes
/// its own natural size through the controller:
///
///     QSize MyButton::sizeHint() const { return controller_->szHint(naturalSize()); }
///
/// Children are not owned; those that died are skipped.
class ZELWIDGETS_EXPORT SameSizeController : public QObject
{
    Q_OBJECT

public:
    /// Which hint a child's function is asked for.
    enum SzHintMode : int { SizeHint = 0, MinimumSizeHint = 1 };
    using ChildFunction = std::function<QSize(SzHintMode)>;

    SameSizeController();
    explicit SameSizeController(QObject *parent);

    /// Adds a child by the function that tells its natural size. The function must not ask the
    /// controller; it is not called once the widget is gone.
    void addChildInf(ChildFunction function, QPointer<QWidget> child);
    /// Adds a widget that doesn't ask the controller itself; its own hints count.
    void addUnaffectedChild(QWidget *child);
    /// The directions that are to be evened. A child that is larger than the rest counts in both.
    void setSameSizeDirection(QFlags<Qt::Orientation> direction);

    /// The size hint for a widget whose natural one is given.
    QSize szHint(QSize size) const;
    /// The minimum size hint, likewise.
    QSize minSzHint(QSize size) const;

protected:
    explicit SameSizeController(QObjectPrivate &d);

private:
    QSize largest(QSize size, SzHintMode mode) const;

    QList<ChildFunction> functions_;
    QList<QPointer<QWidget>> children_;
    QFlags<Qt::Orientation> direction_;
};
