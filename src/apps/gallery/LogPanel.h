#pragma once

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QToolButton;

/// The panel below the page: the signals that the page's widgets emit and the messages that go
/// through Qt's message functions, newest last.
class LogPanel : public QWidget
{
    Q_OBJECT

public:
    explicit LogPanel(QWidget *parent = nullptr);
    ~LogPanel() override;

    /// Makes the Tab key go from a widget to the panel.
    void followInTabOrder(QWidget *widget);
    QWidget *lastTabStop() const;
    QString text() const;
    /// For a panel in a window that has a title of its own.
    void hideTitle();

public Q_SLOTS:
    void addSignal(const QString &entry);
    void clear();

private:
    void addLine(const QString &kind, const QString &entry);
    static void handleMessage(QtMsgType type, const QMessageLogContext &context,
                              const QString &text);

    QLabel *title_;
    QToolButton *clearButton_;
    QPlainTextEdit *view_;
};
