#pragma once

#include <QWidget>

/// A widget that is never shown and tells by its properties which rules of the application's
/// style sheet have reached it.
class ZelVerifyStyleSheetWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString stylename READ stylename WRITE setStylename)
    Q_PROPERTY(int errorLine READ errorLine WRITE setErrorLine)

public:
    explicit ZelVerifyStyleSheetWidget(QWidget *parent = nullptr);

    QString stylename() const;
    void setStylename(const QString &name);
    int errorLine() const;
    void setErrorLine(int line);

private:
    QString stylename_;
    int errorLine_ = -1;
};
