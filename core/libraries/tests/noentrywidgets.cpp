// A shared object in the modules folder that is no widget library: it has no WidgetsLibInit.
extern "C" int NoEntryWidgetsAnswer()
{
    return 42;
}
