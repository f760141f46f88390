#pragma once

#include <QMainWindow>

class GalleryApplication;
class GalleryPage;
class LogPanel;
class QAction;
class QLineEdit;
class QListWidget;
class QMenu;
class QStackedWidget;

/// The gallery's main window: the page list with its filter at the left, the page in the middle,
/// the log below. List and log can be folded away.
class GalleryWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(GalleryApplication *application);

    /// Shows a page of the catalog, creating it when it is new.
    void showPage(int index);
    int currentPage() const;
    GalleryPage *page(int index) const;
    /// Creates every page, for checks that walk all of them.
    void createAllPages();
    void setLogVisible(bool visible);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    QWidget *createPageList();
    void createActions();
    void createPaletteEntry(QMenu *menu);
    void createThemeMenu();
    void createToolBar();
    void filterPages(const QString &text);
    void openFirstMatch();
    void focusFilter();
    void stepPage(int step);
    void fitListToTitles();
    void tellPages();
    void restoreLayout();
    void saveLayout() const;

    GalleryApplication *application_;
    QLineEdit *filter_ = nullptr;
    QListWidget *list_ = nullptr;
    QWidget *listPanel_ = nullptr;
    QStackedWidget *stack_ = nullptr;
    LogPanel *log_ = nullptr;
    QWidget *fontSizeBox_ = nullptr;
    QAction *showList_ = nullptr;
    QAction *showLog_ = nullptr;
    QList<GalleryPage *> pages_;
};
