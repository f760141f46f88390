#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QLineEdit>
#include <QRegularExpression>
#include <QValidator>

/// Accepts the text of a geographic position: degrees and a hemisphere letter for the latitude,
/// then for the longitude, as in "48.1372 N 11.5755 E".
class ZELWIDGETS_EXPORT ZelCoordinateValidator : public QValidator
{
    Q_OBJECT

public:
    explicit ZelCoordinateValidator(QWidget *parent);

    /// Acceptable or Invalid, never Intermediate: don't install it on a field, where it would stop
    /// the user at the first letter.
    State validate(QString &input, int &position) const override;
    /// Reads degrees, south and west negative. False if the text is no position; then the numbers
    /// stay as they are.
    bool extractCoordinates(const QString &text, float &latitude, float &longitude) const;

private:
    QRegularExpressionMatch match(const QString &text) const;

    QRegularExpression expression_;
};

/// A field for a geographic position. While a text is typed that is none, the ground is red and
/// the coordinates stay; Escape brings their text back.
class ZELWIDGETS_EXPORT ZelCoordinateEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ZelCoordinateEdit(QWidget *parent);

    /// Degrees, south and west negative.
    void coordinates(float &latitude, float &longitude) const;
    /// Emits nothing. Refuses with a warning what does not lie within 90 degrees of the equator
    /// and 180 of the prime meridian.
    void setCoordinates(float latitude, float longitude);

Q_SIGNALS:
    /// The user finished a text that names another position.
    void valueUpdated();

protected Q_SLOTS:
    /// Takes the coordinates from a text that the user has changed and that names a position.
    void valueFromText();
    /// Shows whether the text names a position.
    void onTextEdit(QString s);
    void textFromValues();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    float latitude_ = 0;
    float longitude_ = 0;
    ZelCoordinateValidator *validator_;
};
