#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QListWidget>

class QMimeData;

/// A list that takes every drop and leaves it to its owner: it inserts nothing itself.
class ZELWIDGETS_EXPORT ZelListWidget : public QListWidget
{
    Q_OBJECT

public:
    explicit ZelListWidget(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The data live until the call returns.
    void gotDropData(const QMimeData *data);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
};

/// The zooming of ZelListViewWithZoom for a list of items.
class ZELWIDGETS_EXPORT ZelListWidgetWithZoom : public QListWidget
{
    Q_OBJECT

public:
    explicit ZelListWidgetWithZoom(QWidget *parent = nullptr);

    using QListWidget::resize;

Q_SIGNALS:
    /// By eighths of a degree, as the wheel tells them: 120 is a notch, or a key press.
    void resize(int delta);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
};

/// A list as wide as its longest entry.
class ZELWIDGETS_EXPORT ZelListWidgetWithSizeHint : public QListWidget
{
    Q_OBJECT

public:
    using QListWidget::QListWidget;

    QSize sizeHint() const override;
};
