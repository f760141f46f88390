#include "IProgressObserver.h"

IProgressObserver::~IProgressObserver() = default;
