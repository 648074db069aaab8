// A widget library that ends the process while it initialises, and leaves no core file behind.
#include "widgets/widgetlibrary.h"

#include <cstdlib>
#include <sys/resource.h>

HMI_WIDGET_LIBRARY_INTERFACE

extern "C" int WidgetsLibInit()
{
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    std::abort();
}
