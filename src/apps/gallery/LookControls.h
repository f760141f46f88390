#pragma once

#include <QComboBox>
#include <QIcon>

class GalleryApplication;
class QMenu;

/// The controls of theme and font size that the gallery's windows share.
namespace LookControls {

/// An icon of the gallery's, by the name of its file.
QIcon icon(const QString &name);
/// An entry for each theme, checked for the one in force.
void addThemes(QMenu *menu, GalleryApplication *application);
/// Takes the theme once the present event is over, so that a menu that asked for it is closed
/// before all widgets are polished anew.
void takeTheme(GalleryApplication *application, const QString &key);
void takeOtherTheme(GalleryApplication *application);

} // namespace LookControls

/// Chooses the application's font size and follows it.
class FontSizeBox : public QComboBox
{
    Q_OBJECT

public:
    explicit FontSizeBox(GalleryApplication *application, QWidget *parent = nullptr);

private:
    void choose(int row);
    void follow();

    GalleryApplication *application_;
};
