#include "ZelAbstractProgressBar.h"

ZelAbstractProgressBar::~ZelAbstractProgressBar() = default;
