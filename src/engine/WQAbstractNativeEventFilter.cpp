#include "WQAbstractNativeEventFilter.h"

WQAbstractNativeEventFilter::WQAbstractNativeEventFilter() = default;

WQAbstractNativeEventFilter::~WQAbstractNativeEventFilter() = default;
