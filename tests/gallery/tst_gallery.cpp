#include "TestCase.h"

#include "GalleryApplication.h"
#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "PageCatalog.h"
#include "StyleFile.h"
#include "TabWalk.h"
#include "UserInput.h"

#include <ZelWidgets/ZelStyleSheets>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTextEdit>
#include <QToolButton>
#include <QWheelEvent>

namespace {

bool looksDifferentWithFocus(QWidget *widget)
{
    const QImage focused = widget->grab().toImage();
    widget->clearFocus();
    const QImage plain = widget->grab().toImage();
    widget->setFocus(Qt::TabFocusReason);
    return focused != plain;
}

} // namespace

class GalleryTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void theStyleFileKeepsItsAuthorsRules();
    void textAndMarksHaveEnoughContrast();
    void theTabKeyReachesEveryControlAndItsFocusIsSeen();
    void thePageListIsFilteredAndOperatedByKeys();
    void aBrokenRuleIsFoundWhereItWasTyped();
    void theFontSizeReachesEveryWidget();
    void theControlsSuitEveryFontSize_data();
    void theControlsSuitEveryFontSize();
    void aPlaceholderFollowsEverySwitch();
    void theWheelScrollsPastControlsWithoutFocus();
    void theCommandLineRefusesWhatItDoesNotKnow();

private:
    std::unique_ptr<GalleryApplication> application_;
    std::unique_ptr<GalleryWindow> window_;
};

void GalleryTest::initTestCase()
{
    init();
    application_ = std::make_unique<GalleryApplication>(QStringLiteral("Dark"));
    window_ = std::make_unique<GalleryWindow>(application_.get());
    window_->show();
    window_->createAllPages();
    cleanup();
}

void GalleryTest::cleanupTestCase()
{
    window_.reset();
    application_.reset();
}

void GalleryTest::theStyleFileKeepsItsAuthorsRules()
{
    QFile file(QStringLiteral(":/res/zelmora.style"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(file.readAll());
    QVERIFY(!text.contains(QLatin1String(".svg")));

    const auto palettes = StyleFile::palettes();
    QCOMPARE(palettes.keys(), QStringList({QStringLiteral("Dark"), QStringLiteral("Light")}));
    const StyleFile::Palette dark = palettes.value(QStringLiteral("Dark"));
    const StyleFile::Palette light = palettes.value(QStringLiteral("Light"));
    QCOMPARE(dark.keys(), light.keys());

    for (const auto &theme : ZelStyleSheets::colorThemeList()) {
        const QString sheet = ZelStyleSheets::parseFullStyleSheet(theme.second, QString());
        for (const QString &key : dark.keys())
            QVERIFY2(!sheet.contains(key), qPrintable(key + QStringLiteral(" was left in place")));
    }
    ZelStyleSheets::parseFullStyleSheet(application_->theme(), QString());
}

void GalleryTest::textAndMarksHaveEnoughContrast()
{
    const auto pairs = StyleFile::contrastPairs();
    QVERIFY(pairs.size() > 10);
    QStringList faults;
    const auto palettes = StyleFile::palettes();
    for (auto palette = palettes.begin(); palette != palettes.end(); ++palette) {
        for (const StyleFile::ContrastPair &pair : pairs) {
            const QColor text = StyleFile::color(palette->value(pair.foreground));
            const QColor ground = StyleFile::color(palette->value(pair.background));
            const bool known = text.isValid() && ground.isValid();
            if (!known || StyleFile::contrast(text, ground) < pair.required)
                faults.append(palette.key() + u' ' + pair.foreground + QStringLiteral(" on ") +
                              pair.background);
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QStringLiteral("; "))));
}

void GalleryTest::theTabKeyReachesEveryControlAndItsFocusIsSeen()
{
    window_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    auto *list = window_->findChild<QListWidget *>(QStringLiteral("GalleryPages"));
    QStringList faults;
    for (int i = 0; i < pageCatalog().size(); ++i) {
        window_->showPage(i);
        QList<QWidget *> reached = TabWalk::onceAround(list);
        QVERIFY2(reached.last() == list,
                 qPrintable(pageCatalog()[i].id + u' ' + TabWalk::nameOf(reached.last())));
        const QWidget *area = window_->page(i)->parentWidget()->parentWidget();
        QVERIFY2(area == reached.first() || area->isAncestorOf(reached.first()),
                 qPrintable(QStringLiteral("first: ") + TabWalk::nameOf(reached.first())));
        for (QWidget *widget : window_->page(i)->findChildren<QWidget *>()) {
            if (TabWalk::isStop(widget) && !TabWalk::holds(reached, widget))
                faults.append(QStringLiteral("not reached: ") + TabWalk::nameOf(widget));
        }
        for (QWidget *widget : std::as_const(reached)) {
            widget->setFocus(Qt::TabFocusReason);
            if (!looksDifferentWithFocus(widget))
                faults.append(QStringLiteral("focus not seen: ") + TabWalk::nameOf(widget));
        }
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

void GalleryTest::thePageListIsFilteredAndOperatedByKeys()
{
    auto *list = window_->findChild<QListWidget *>(QStringLiteral("GalleryPages"));
    auto *filter = window_->findChild<QLineEdit *>(QStringLiteral("GalleryFilter"));
    QVERIFY(list && filter);
    filter->setFocus();
    filter->setText(QStringLiteral("broken rules"));
    int visible = 0;
    for (int row = 0; row < list->count(); ++row)
        visible += !list->item(row)->isHidden();
    QCOMPARE(visible, 1);
    QTest::keyClick(filter, Qt::Key_Return);
    QCOMPARE(window_->currentPage(), pageIndex(QStringLiteral("stylesheet")));
    filter->clear();

    window_->showPage(0);
    QTest::keyClick(list, Qt::Key_Down);
    QCOMPARE(window_->currentPage(), 1);
}

void GalleryTest::aBrokenRuleIsFoundWhereItWasTyped()
{
    const int index = pageIndex(QStringLiteral("stylesheet"));
    window_->showPage(index);
    const QString running = qApp->styleSheet();
    QPlainTextEdit *editor = nullptr;
    for (QPlainTextEdit *edit : window_->page(index)->findChildren<QPlainTextEdit *>()) {
        if (!edit->isReadOnly())
            editor = edit;
    }
    QVERIFY(editor);
    editor->setPlainText(QStringLiteral("QLabel { color: red; }\n\nQLabel { color: ; oops\n\n"
                                        "QFrame { color: blue; }\n"));
    QPushButton *check = nullptr;
    for (QPushButton *button : window_->page(index)->findChildren<QPushButton *>()) {
        if (button->text().contains(QLatin1String("Check")))
            check = button;
    }
    QVERIFY(check);
    messages().expect(QtWarningMsg, QStringLiteral("Could not parse application stylesheet"));
    messages().expect(QtWarningMsg, QStringLiteral("Could not parse application stylesheet"));
    QString shown;
    const UserInput::DialogAnswer answer([&](QDialog *dialog) {
        shown = dialog->findChild<QTextEdit *>()->toPlainText();
        dialog->accept();
    });
    check->click();
    QVERIFY(answer.finished());
    QVERIFY2(shown.contains(QStringLiteral("oops")), qPrintable(shown));
    QVERIFY(!shown.contains(QStringLiteral("blue")));
    QCOMPARE(qApp->styleSheet(), running);
}

void GalleryTest::theFontSizeReachesEveryWidget()
{
    const int index = pageIndex(QStringLiteral("plain"));
    window_->showPage(index);
    const auto *combo = window_->page(index)->findChild<QComboBox *>();
    QVERIFY(combo);
    QTRY_COMPARE(combo->height(), combo->sizeHint().height());
    const int height = combo->height();
    application_->setFontSize(14);
    for (const QLabel *label : window_->page(index)->findChildren<QLabel *>())
        QCOMPARE(label->font().pointSize(), 14);
    QTRY_VERIFY(combo->height() > height);
    // The second change, and a smaller font: what had to grow shrinks again.
    application_->setFontSize(-1);
    QTRY_COMPARE(combo->height(), height);
}

void GalleryTest::theControlsSuitEveryFontSize_data()
{
    QTest::addColumn<int>("points");
    QTest::addColumn<int>("iconSize");
    QTest::newRow("small") << 8 << 16;
    QTest::newRow("large") << 16 << 24;
}

void GalleryTest::theControlsSuitEveryFontSize()
{
    QFETCH(const int, points);
    QFETCH(const int, iconSize);
    application_->setFontSize(points);
    const auto restore = qScopeGuard([this] { application_->setFontSize(-1); });
    const GalleryPage *page = nullptr;
    for (const char *name : {"labels", "texts", "menus", "grouping", "messages", "progress", "crop",
                             "shortcuts", "buttons"}) {
        const int index = pageIndex(QLatin1String(name));
        window_->showPage(index);
        page = window_->page(index);
        QTRY_VERIFY2(page->minimumSizeHint().width() <= 1000, name);
    }
    const auto *box = page->findChild<QCheckBox *>();
    QVERIFY(qAbs(box->iconSize().height() - iconSize) <= 2);
    QVERIFY(qAbs(box->style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, box) - iconSize) <=
            4);

    // In each pair the push button follows the tool button.
    const QToolButton *tool = nullptr;
    int pairs = 0;
    for (const auto *button : page->findChildren<QAbstractButton *>()) {
        if (!button->property("rank").isValid())
            continue;
        if (const auto *next = qobject_cast<const QToolButton *>(button)) {
            tool = next;
            continue;
        }
        QCOMPARE(tool->sizeHint().height(), button->sizeHint().height());
        QVERIFY(qAbs(tool->sizeHint().width() - button->sizeHint().width()) <= 3);
        ++pairs;
    }
    QCOMPARE(pairs, 18);
}

void GalleryTest::aPlaceholderFollowsEverySwitch()
{
    QPlainTextEdit edit;
    edit.setFocusPolicy(Qt::NoFocus);
    edit.setPlaceholderText(QStringLiteral("nothing here"));
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    const QImage before = edit.grab().toImage();
    for (const QString &theme : {QStringLiteral("Light"), QStringLiteral("Dark"),
                                 QStringLiteral("Light"), QStringLiteral("Dark")})
        application_->setTheme(theme);
    QCOMPARE(edit.grab().toImage(), before);
}

void GalleryTest::theWheelScrollsPastControlsWithoutFocus()
{
    const int index = pageIndex(QStringLiteral("windows"));
    window_->showPage(index);
    auto *box = window_->page(index)->findChild<QSpinBox *>();
    QVERIFY(box);
    const auto turn = [box] {
        const QPointF place = QRectF(box->rect()).center();
        QWheelEvent wheel(place, box->mapToGlobal(place), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &wheel);
    };
    box->clearFocus();
    turn();
    QCOMPARE(box->value(), 0);
    window_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
    box->setFocus();
    turn();
    QCOMPARE(box->value(), 1);
    box->setValue(0);
}

void GalleryTest::theCommandLineRefusesWhatItDoesNotKnow()
{
    const QList<QStringList> bad{{QStringLiteral("--page"), QStringLiteral("nowhere")},
                                 {QStringLiteral("--theme"), QStringLiteral("Purple")},
                                 {QStringLiteral("--scale"), QStringLiteral("99")},
                                 {QStringLiteral("--scale=nan")}};
    for (const QStringList &arguments : bad) {
        QProcess gallery;
        gallery.start(QStringLiteral(ZEL_GALLERY), arguments);
        QVERIFY(gallery.waitForFinished());
        QCOMPARE(gallery.exitCode(), 2);
        const QByteArray reason = gallery.readAllStandardError();
        QVERIFY2(reason.contains("gallery: "), reason.constData());
    }
    QProcess gallery;
    QProcessEnvironment noDisplay = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : {QStringLiteral("DISPLAY"), QStringLiteral("WAYLAND_DISPLAY"),
                                    QStringLiteral("QT_QPA_PLATFORM")})
        noDisplay.remove(variable);
    gallery.setProcessEnvironment(noDisplay);
    gallery.start(QStringLiteral(ZEL_GALLERY), {QStringLiteral("--page"), QStringLiteral("plain")});
    QVERIFY(gallery.waitForFinished());
    QCOMPARE(gallery.exitStatus(), QProcess::NormalExit);
    QCOMPARE(gallery.exitCode(), 1);
    gallery.start(QStringLiteral(ZEL_GALLERY), {QStringLiteral("--list-pages")});
    QVERIFY(gallery.waitForFinished());
    QCOMPARE(gallery.readAllStandardOutput().count('\n'), pageCatalog().size());
}

ZEL_TEST_MAIN(GalleryTest)
#include "tst_gallery.moc"
