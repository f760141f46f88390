#pragma once

#include "TestCase.h"

#include <ZelWidgets/ZelDoubleEdit>
#include <ZelWidgets/ZelDoubleSpinBox>
#include <ZelWidgets/ZelIntegerEdit>
#include <ZelWidgets/ZelSpinBox>
#include <ZelWidgets/ZelTimeEdit>

#include <QClipboard>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>

#include <cstring>

inline const QLocale german(QLocale::German, QLocale::Germany);

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

template <typename Field>
struct Open : Field
{
    using Field::Field;
    using Field::textFromValue;
    using Field::valueFromText;
};

using OpenEdit = Open<ZelDoubleEdit>;

inline void press(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
                  const QString &typed = QString())
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, typed);
        QCoreApplication::sendEvent(widget, &event);
    }
}

/// Types over what the field shows and presses Return; any character can be typed.
inline void enter(QAbstractSpinBox *field, const QString &typed)
{
    field->selectAll();
    for (const QChar character : typed)
        press(field, Qt::Key_unknown, {}, QString(character));
    press(field, Qt::Key_Return);
}

inline void paste(QAbstractSpinBox *field, const QString &pasted)
{
    QGuiApplication::clipboard()->setText(pasted);
    field->selectAll();
    field->findChild<QLineEdit *>()->paste();
    press(field, Qt::Key_Return);
}

inline bool sameBits(float left, float right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

/// A panel that scrolls, with one editor of each kind.
struct Panel
{
    Panel()
    {
        area.setWidget(new QWidget);
        auto *layout = new QVBoxLayout(area.widget());
        for (QAbstractSpinBox *field : fields) {
            layout->addWidget(field);
            layout->addSpacing(100);
        }
        doubles->setValue(50.0);
        integers->setValue(50);
        area.setWidgetResizable(true);
        area.resize(200, 200);
        area.show();
    }
    QScrollArea area;
    float number = 50.0F;
    int count = 50;
    ZelDoubleEdit *edit = new ZelDoubleEdit(nullptr, 0.0, 100.0, &number);
    ZelIntegerEdit *integerEdit = new ZelIntegerEdit(nullptr, 0, 100, &count);
    ZelDoubleSpinBox *doubles = new ZelDoubleSpinBox(nullptr);
    ZelSpinBox *integers = new ZelSpinBox(nullptr);
    ZelTimeEdit *time = new ZelTimeEdit;
    QAbstractSpinBox *fields[5] = {edit, integerEdit, doubles, integers, time};
};
