#pragma once

#include "GalleryPage.h"

#include <QMessageBox>

#include <functional>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

/// Message boxes of each kind, with a timed default and details; the mode without dialogs with what
/// it collects; dialogs that are not shown again, with their stored state.
class MessageBoxesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit MessageBoxesPage(QWidget *parent = nullptr);

private:
    void addKinds();
    void addModes();
    void addDialogs();
    QPushButton *createButton(const QString &text, const std::function<void()> &action);
    /// Asks by one of the four functions, in the mode that is chosen on the page.
    template <typename Function>
    void ask(Function function, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton,
             int timeout = 0, const QString &details = QString());
    void collect();
    void openMessageDialog();
    void openRemembering();
    void forget();
    void showStored();

    int mode_ = 0;
    QPlainTextEdit *collected_ = nullptr;
    QCheckBox *remember_ = nullptr;
    QCheckBox *force_ = nullptr;
    QLabel *stored_ = nullptr;
};
