#pragma once

#include <ZelWidgets/ZelIconListWidget>
#include <ZelWidgets/ZelIconListWidgetAdapter>

#include <QList>

#include <memory>

class QUrl;

/// A list of materials of the library and of files: copies what is dragged from other lists into
/// itself, and takes files of a file manager. It tells in words what it does.
class MaterialList : public ZelIconListWidget
{
    Q_OBJECT

public:
    MaterialList(const QString &name, QWidget *parent);
    ~MaterialList() override;

    void addMaterials(const QList<int> &numbers);
    void addFiles(const QList<QUrl> &urls);
    /// The number in the library, or -1 for a file.
    static int numberOf(const QListWidgetItem *item);
    QList<int> selectedMaterials() const;

Q_SIGNALS:
    void said(const QString &text);

protected:
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QList<QListWidgetItem *> &items) const override;
    bool dropMimeData(int index, const QMimeData *data, Qt::DropAction action) override;
    Qt::DropActions supportedDropActions() const override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    class Adapter;
    explicit MaterialList(const QString &name, QWidget *parent, Adapter *adapter);

    std::unique_ptr<Adapter> ownAdapter_;
};
