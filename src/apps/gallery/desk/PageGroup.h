#pragma once

#include <QList>
#include <QWidget>

class GalleryPage;
class QComboBox;
class QTabWidget;
struct PageGroupEntry;

/// A tab with pages of the catalog, of which a box chooses one. A page is created when it is shown
/// for the first time.
class PageGroup : public QWidget
{
    Q_OBJECT

public:
    explicit PageGroup(const PageGroupEntry &entry, QWidget *parent = nullptr);

    bool has(int catalogIndex) const { return indices_.contains(catalogIndex); }
    /// In the catalog.
    int currentIndex() const;
    /// Null if it was never shown.
    GalleryPage *page(int catalogIndex) const;
    /// Creates the page if it is new.
    void showPage(int catalogIndex);

Q_SIGNALS:
    void logged(const QString &entry);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void createShown();

    QList<int> indices_;
    QComboBox *chooser_;
    /// Its tabs are hidden: workspaces store which one is current.
    QTabWidget *pages_;
};
