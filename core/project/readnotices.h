#pragma once

#include <string>
#include <vector>

// Notes that readers leave for the user about a file they read all the same: a name that the
// project does not list, characters that the window file will carry as references. A collector
// gathers the notes reported on its thread while it lives, each text once; nested collectors
// see only their own reads. Without a collector, notes go nowhere.
void ReportReadNotice(std::string text);

class CReadNoticeCollector {
public:
    CReadNoticeCollector();
    ~CReadNoticeCollector();
    CReadNoticeCollector(const CReadNoticeCollector&) = delete;
    CReadNoticeCollector& operator=(const CReadNoticeCollector&) = delete;

    // The notes so far, in the order they were first reported; the collector starts again empty.
    std::vector<std::string> Take();

private:
    friend void ReportReadNotice(std::string text);

    CReadNoticeCollector* m_outer;
    std::vector<std::string> m_notices;
};
