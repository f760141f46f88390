#include "ZelSpectrumDisplay.h"

ZelSpectrumDisplay::ZelSpectrumDisplay(QWidget *parent)
    : QWidget(parent)
{}
