#pragma once

#include <QBasicTimer>
#include <QKeyCombination>
#include <QKeySequence>
#include <QLineEdit>

/// A field that shows the keys that are pressed while it records: all of them, those that
/// otherwise move the focus or close a dialog as well. It starts by start(), a click, Return or
/// Space, and ends a moment after the last key, after four keys, or when it loses the focus.
class ZelKeyRecorder : public QLineEdit
{
    Q_OBJECT

public:
    explicit ZelKeyRecorder(QWidget *parent = nullptr);

    bool isRecording() const { return recording_; }
    QKeySequence sequence() const;
    /// How long it waits for a further key, in milliseconds; 1000 at first.
    void setPause(int milliseconds);

    /// Takes the focus, and drops what was recorded.
    void start();
    void stop();
    /// Stops and forgets; emits nothing.
    void reset();

Q_SIGNALS:
    /// With each key.
    void recorded(const QKeySequence &sequence);
    /// Empty if no key came.
    void finished(const QKeySequence &sequence);

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    void record(const QKeyEvent &event);
    void showKeys();

    QList<QKeyCombination> keys_;
    QBasicTimer timer_;
    int pause_;
    bool recording_ = false;
};
