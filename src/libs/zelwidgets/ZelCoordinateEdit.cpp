#include "ZelCoordinateEdit.h"

#include "ZelCoordinateText.h"

#include <QDebug>
#include <QKeyEvent>

ZelCoordinateValidator::ZelCoordinateValidator(QWidget *parent)
    : QValidator(parent)
    , expression_(ZelCoordinateText::expression())
{}

QRegularExpressionMatch ZelCoordinateValidator::match(const QString &text) const
{
    return expression_.match(ZelCoordinateText::normalized(text, QLocale()));
}

QValidator::State ZelCoordinateValidator::validate(QString &input, int &position) const
{
    Q_UNUSED(position);
    return match(input).hasMatch() ? Acceptable : Invalid;
}

bool ZelCoordinateValidator::extractCoordinates(const QString &text, float &latitude,
                                                float &longitude) const
{
    const auto position = ZelCoordinateText::read(match(text));
    if (!position)
        return false;
    latitude = position->latitude;
    longitude = position->longitude;
    return true;
}

ZelCoordinateEdit::ZelCoordinateEdit(QWidget *parent)
    : QLineEdit(parent)
    , validator_(new ZelCoordinateValidator(this))
{
    textFromValues();
    setToolTip(tr("Latitude and longitude in degrees, for example %1")
                   .arg(ZelCoordinateText::write({48.1372F, 11.5755F}, QLocale())));
    connect(this, &QLineEdit::textEdited, this, &ZelCoordinateEdit::onTextEdit);
    connect(this, &QLineEdit::editingFinished, this, &ZelCoordinateEdit::valueFromText);
}

void ZelCoordinateEdit::coordinates(float &latitude, float &longitude) const
{
    latitude = latitude_;
    longitude = longitude_;
}

void ZelCoordinateEdit::setCoordinates(float latitude, float longitude)
{
    if (!ZelCoordinateText::isOnGlobe({latitude, longitude})) {
        qWarning() << "No such place on the globe:" << latitude << longitude << objectName();
        return;
    }
    latitude_ = latitude;
    longitude_ = longitude;
    textFromValues();
}

void ZelCoordinateEdit::valueFromText()
{
    float latitude = latitude_;
    float longitude = longitude_;
    if (!isModified() || !validator_->extractCoordinates(text(), latitude, longitude))
        return;
    const bool isOther = latitude != latitude_ || longitude != longitude_;
    latitude_ = latitude;
    longitude_ = longitude;
    textFromValues();
    if (isOther)
        Q_EMIT valueUpdated();
}

void ZelCoordinateEdit::onTextEdit(QString s)
{
    int position = cursorPosition();
    const QValidator::State state = validator_->validate(s, position);
    QString sheet;
    if (state == QValidator::Invalid)
        sheet = QStringLiteral("QLineEdit {background: #f99;}");
    else if (state == QValidator::Intermediate)
        sheet = QStringLiteral("QLineEdit {background: #ff9;}");
    if (sheet != styleSheet())
        setStyleSheet(sheet);
    setAccessibleDescription(sheet.isEmpty() ? QString() : tr("This is no position"));
}

void ZelCoordinateEdit::textFromValues()
{
    setText(ZelCoordinateText::write({latitude_, longitude_}, QLocale()));
    onTextEdit(text());
}

void ZelCoordinateEdit::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || !isModified()) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    textFromValues();
    event->accept();
}
