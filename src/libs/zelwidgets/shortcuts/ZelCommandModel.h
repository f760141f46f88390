#pragma once

#include "ZelCommand.h"

#include <QAbstractListModel>

/// The commands that fit what was typed, the best first; all of them in their own order as long as
/// nothing was.
class ZelCommandModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role : int {
        CategoryRole = Qt::UserRole, ///< QString
        KeyRole,                     ///< QString, in the platform's words
        EnabledRole,                 ///< bool, of now
        PositionsRole                ///< QList<qsizetype>: the letters of the text that fit
    };

    explicit ZelCommandModel(QObject *parent = nullptr);

    void setCommands(QList<ZelCommand> commands);
    void setPattern(const QString &pattern);
    /// The row has to exist.
    const ZelCommand &command(int row) const { return commands_[rows_[row].command]; }
    /// What is said of a row where it can't be seen.
    QString spokenText(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Row
    {
        qsizetype command;
        int score;
        QList<qsizetype> positions;
    };
    std::optional<Row> rowOf(qsizetype command) const;
    void fill();

    QList<ZelCommand> commands_;
    QString pattern_;
    QList<Row> rows_;
};
