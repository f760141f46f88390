#pragma once

#include "GalleryPage.h"

#include <QPointer>

#include <functional>

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QLabel;
class QSpinBox;
class ZelBorderDialog;

/// Dialogs for credentials, a new password and the deletion of items, and the frameless dialog with
/// its shadow. Of what is entered nothing but its presence is shown.
class DialogsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit DialogsPage(QWidget *parent = nullptr);

private:
    void addCredentials();
    void addDeletion();
    void addFrameless();
    QAbstractButton *createButton(const QString &text, const std::function<void()> &slot);
    QSpinBox *createNumber(int lowest, int highest, int value);
    void tell(QLabel *label, const QString &text);
    void askCredentials();
    void askPassword();
    void askDeletion(const QStringList &items);
    void showFrameless();
    void updateShadow();

    QLabel *credentials_ = nullptr;
    QLabel *deletion_ = nullptr;
    QCheckBox *shadow_ = nullptr;
    QSpinBox *blur_ = nullptr;
    QSpinBox *offsetX_ = nullptr;
    QSpinBox *offsetY_ = nullptr;
    QComboBox *color_ = nullptr;
    QPointer<ZelBorderDialog> frameless_;
};
