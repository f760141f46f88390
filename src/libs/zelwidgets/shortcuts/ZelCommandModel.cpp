#include "ZelCommandModel.h"

#include "ZelFuzzyMatch.h"

#include <algorithm>

ZelCommandModel::ZelCommandModel(QObject *parent)
    : QAbstractListModel(parent)
{}

void ZelCommandModel::setCommands(QList<ZelCommand> commands)
{
    beginResetModel();
    commands_ = std::move(commands);
    fill();
    endResetModel();
}

void ZelCommandModel::setPattern(const QString &pattern)
{
    beginResetModel();
    pattern_ = pattern;
    fill();
    endResetModel();
}

std::optional<ZelCommandModel::Row> ZelCommandModel::rowOf(qsizetype command) const
{
    const QString text = commands_[command].text();
    if (const auto match = ZelFuzzyMatch::of(pattern_, text))
        return Row{command, match->score, match->positions};
    // Words of the category help to find a command, but the text alone counts more.
    const QString prefix = commands_[command].category() + u' ';
    const auto match = ZelFuzzyMatch::of(pattern_, prefix + text);
    if (!match)
        return std::nullopt;
    Row row{command, match->score / 2, {}};
    for (const qsizetype position : match->positions) {
        if (position >= prefix.size())
            row.positions.append(position - prefix.size());
    }
    return row;
}

void ZelCommandModel::fill()
{
    rows_.clear();
    for (qsizetype i = 0; i < commands_.size(); ++i) {
        if (const auto row = rowOf(i))
            rows_.append(*row);
    }
    std::stable_sort(rows_.begin(), rows_.end(), [this](const Row &a, const Row &b) {
        if (a.score != b.score)
            return a.score > b.score;
        // Of equal ones the shorter text fits better; without a pattern all are equal.
        return !pattern_.isEmpty() &&
               commands_[a.command].text().size() < commands_[b.command].text().size();
    });
}

QString ZelCommandModel::spokenText(int row) const
{
    const ZelCommand &command = this->command(row);
    QStringList parts{command.text(), command.category(),
                      command.key().toString(QKeySequence::NativeText)};
    if (!command.isEnabled())
        parts += tr("not available");
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

int ZelCommandModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant ZelCommandModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const ZelCommand &command = this->command(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return command.text();
    case Qt::AccessibleTextRole:
        return spokenText(index.row());
    case CategoryRole:
        return command.category();
    case KeyRole:
        return command.key().toString(QKeySequence::NativeText);
    case EnabledRole:
        return command.isEnabled();
    case PositionsRole:
        return QVariant::fromValue(rows_[index.row()].positions);
    default:
        return {};
    }
}
