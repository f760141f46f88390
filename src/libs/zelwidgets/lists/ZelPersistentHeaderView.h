#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QByteArray>
#include <QHeaderView>
#include <QList>
#include <QString>

#include <functional>

/// A header whose columns stay as the user arranged them: order, widths, sort mark and what is
/// hidden, stored in the settings group "ui" when the header goes, and taken up by setModel().
///
///     using Header = ZelPersistentHeaderView;
///     view->setHeader(new Header(QStringLiteral("materialColumns"), Qt::Horizontal,
///                                Header::hideColumns({2, 3}), view));
///     view->setModel(model);
///
/// A context menu shows and hides columns.
class ZELWIDGETS_EXPORT ZelPersistentHeaderView : public QHeaderView
{
    Q_OBJECT

public:
    /// The predicate tells the columns that are hidden while nothing is stored; without one, all
    /// are shown.
    ZelPersistentHeaderView(QString const &settingsKey, Qt::Orientation orientation,
                            std::function<bool(int)> hiddenColumnsPredicate, QWidget *parent);
    ~ZelPersistentHeaderView() override;

    /// Predicates for the constructor: hide these, or hide all but these.
    static std::function<bool(int)> hideColumns(QList<int> columns);
    static std::function<bool(int)> showColumns(QList<int> columns);

    /// Takes effect at the next setModel().
    void setHiddenColumns(QList<int> const &columns);

    /// A stored state of another number of columns is taken up as far as it goes.
    void setModel(QAbstractItemModel *model) override;

Q_SIGNALS:
    /// Nothing was stored, or what is stored can't be read.
    void settingsNotRestored();

private Q_SLOTS:
    void onHeaderMenu(QPoint point);

private:
    bool restore(const QVariant &stored);
    void keepState();

    QString settingsKey_;
    std::function<bool(int)> hiddenColumnsPredicate_;
    /// As it was when the model went.
    QByteArray state_;
};
