#include "TestCase.h"
#include "UserInput.h"

#include "GalleryPage.h"
#include "PageCatalog.h"

#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelDoubleEdit>
#include <ZelWidgets/ZelIntegerEdit>

#include <QAbstractSlider>
#include <QComboBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTimeEdit>

#include <set>

namespace {

constexpr int rowCount = 40;

/// Every bound number of the page, bit for bit.
QByteArray numbersOf(const QWidget *page)
{
    QByteArray numbers;
    const auto add = [&numbers](float number) {
        numbers.append(reinterpret_cast<const char *>(&number), sizeof number);
    };
    for (const auto *field : page->findChildren<ZelDoubleEdit *>())
        add(field->getValue());
    for (auto *field : page->findChildren<ZelIntegerEdit *>())
        add(field->getValue());
    for (const auto *field : page->findChildren<QTimeEdit *>())
        add(float(field->time().msecsSinceStartOfDay()));
    return numbers;
}

QStringList textsOf(const QWidget *page)
{
    QStringList texts;
    for (const auto *field : page->findChildren<QAbstractSpinBox *>())
        texts.append(field->text());
    for (const auto *table : page->findChildren<QTableWidget *>()) {
        for (int line = 0; line < table->rowCount(); ++line)
            texts.append(table->item(line, 1)->text());
    }
    return texts;
}

} // namespace

class TestParameterPanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void tabbingThroughChangesNoBit();
    void wheelWithoutControlChangesNothing();
    void unitsThereAndBackRestoreEverything();
    void tableFollowsTheNumbers();

private:
    std::unique_ptr<QScrollArea> area_;
    GalleryPage *page_ = nullptr;
};

void TestParameterPanel::initTestCase()
{
    IconColorTheme::instance()->buildMap(
        QStringLiteral("[{\"icon_main\": \"#808080\", \"arrow_main\": \"#818181\"}]"));
}

void TestParameterPanel::init()
{
    TestCase::init();
    area_ = std::make_unique<QScrollArea>();
    page_ = pageCatalog().at(pageIndex(QStringLiteral("parameters"))).create();
    area_->setWidget(page_);
    area_->setWidgetResizable(true);
    area_->resize(900, 500);
    area_->show();
    QVERIFY(QTest::qWaitForWindowActive(area_.get()));
}

void TestParameterPanel::cleanup()
{
    area_.reset();
    TestCase::cleanup();
}

void TestParameterPanel::tabbingThroughChangesNoBit()
{
    const QByteArray numbers = numbersOf(page_);
    const QStringList texts = textsOf(page_);
    QSignalSpy logged(page_, &GalleryPage::logged);
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        std::set<QWidget *> fields;
        for (int step = 0; step < 3 * rowCount; ++step) {
            QTest::keyClick(area_->focusWidget() ? area_->focusWidget() : area_.get(), key);
            if (qobject_cast<QAbstractSpinBox *>(area_->focusWidget()))
                fields.insert(area_->focusWidget());
        }
        // All but the locked one and the two in the closed panel.
        QCOMPARE(int(fields.size()), rowCount - 3);
    }
    QCOMPARE(numbersOf(page_), numbers);
    QCOMPARE(textsOf(page_), texts);
    for (const auto &entry : logged)
        QVERIFY2(!entry.at(0).toString().contains(QLatin1String("valueUpdated")),
                 qPrintable(entry.at(0).toString()));
}

void TestParameterPanel::wheelWithoutControlChangesNothing()
{
    const QByteArray numbers = numbersOf(page_);
    const QStringList texts = textsOf(page_);
    QScrollBar *bar = area_->verticalScrollBar();
    int turned = 0;
    for (QWidget *editor : page_->findChildren<QWidget *>()) {
        if (!editor->isVisible() || qobject_cast<QScrollBar *>(editor) ||
            !(qobject_cast<QAbstractSpinBox *>(editor) || qobject_cast<QAbstractSlider *>(editor) ||
              qobject_cast<QComboBox *>(editor)))
            continue;
        for (const auto modifiers :
             {Qt::KeyboardModifiers{}, Qt::KeyboardModifiers{Qt::ShiftModifier}}) {
            bar->setValue(bar->maximum() / 2);
            QVERIFY(UserInput::wheel(editor, -1, modifiers));
            QVERIFY2(bar->value() > bar->maximum() / 2, editor->metaObject()->className());
        }
        ++turned;
    }
    QVERIFY(turned > 2 * (rowCount - 3));
    QCOMPARE(numbersOf(page_), numbers);
    QCOMPARE(textsOf(page_), texts);
}

void TestParameterPanel::unitsThereAndBackRestoreEverything()
{
    const QByteArray numbers = numbersOf(page_);
    const QStringList texts = textsOf(page_);
    const auto choices = page_->findChildren<QComboBox *>();
    QCOMPARE(choices.size(), 3);
    for (QComboBox *choice : choices) {
        const int before = choice->currentIndex();
        for (int index = 0; index < choice->count(); ++index) {
            choice->setCurrentIndex(index);
            QCOMPARE(textsOf(page_) == texts, index == before);
            QCOMPARE(numbersOf(page_), numbers);
        }
        choice->setCurrentIndex(before);
        QCOMPARE(textsOf(page_), texts);
    }
}

void TestParameterPanel::tableFollowsTheNumbers()
{
    const auto *table = page_->findChild<QTableWidget *>();
    QCOMPARE(table->rowCount(), rowCount);
    auto *field = page_->findChildren<ZelDoubleEdit *>().constFirst();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("0.5"));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(table->item(0, 1)->text(), QStringLiteral("0.5"));
    QTRY_COMPARE(table->item(0, 2)->text(), QStringLiteral("0 to 1"));
}

ZEL_TEST_MAIN(TestParameterPanel)
#include "tst_parameter_panel.moc"
