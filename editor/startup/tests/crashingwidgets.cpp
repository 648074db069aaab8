// A widget library that ends the process while it initialises, and leaves no core file behind.
#include <cstdlib>
#include <sys/resource.h>

extern "C" int WidgetsLibInit()
{
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    std::abort();
}
