#pragma once

#include "GalleryPage.h"

#include <array>
#include <functional>

class QTableWidget;
class ZelAccordionWidget;
class ZelUnitManager;

/// A panel of forty rows as an application has it, and a table of the numbers behind them.
class ParameterPanelPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ParameterPanelPage(QWidget *parent = nullptr);

private:
    struct Real;

    void addUnits();
    void addUnitChoice(QLayout *layout, const QString &name, int quantity);
    void addPanel();
    void addTable();
    void fill(ZelAccordionWidget *section, const Real *reals, int count);
    void addWholeNumbers(ZelAccordionWidget *section);
    void addOthers(ZelAccordionWidget *section);
    QWidget *makeRow(const Real &real);
    QWidget *makeDropDown(const Real &real);
    /// A line of the table; both texts are asked for after each change.
    void addLine(const QString &name, const std::function<QString()> &number,
                 const std::function<QString()> &range);
    template <typename Row>
    void follow(Row *row, const Real &real, const float *number);
    void refresh(int line);

    struct Line
    {
        QString name;
        std::function<QString()> number;
        std::function<QString()> range;
    };
    ZelUnitManager *units_;
    QTableWidget *table_ = nullptr;
    QList<Line> lines_;
    std::array<float, 34> reals_{};
    std::array<int, 5> wholes_{64, 4, 8, 1024, 3};
    int realCount_ = 0;
};
