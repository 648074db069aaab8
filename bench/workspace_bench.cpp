// Measures the project check, finding references and planning a rename on a generated project of
// 100 windows of 500 widgets, in CPU time, next to loading the same window files alone in the
// same run. The check reads each window as loading does and should cost little more than that.

#include "bench/benchtiming.h"
#include "catalogue/builtinwidgets.h"
#include "widgets/tamlodoc.h"
#include "workspace/projectcheck.h"
#include "workspace/projectwindows.h"
#include "workspace/variablerename.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr int kWindows = 100;
constexpr int kWidgetsPerWindow = 500;
constexpr int kRepetitions = 3;

void WriteFile(const std::filesystem::path& path, const std::string& text)
{
    std::ofstream(path, std::ios::binary) << text;
}

// A widget of one of four kinds, each with variable references: a bound colour and an event
// script, a bound text, a number input, a plain ellipse.
std::string Widget(int window, int i)
{
    const std::string name = "w" + std::to_string(i);
    const std::string rect = "<property name=\"left\" type=\"short\" value=\"" + std::to_string(i % 700) +
                             "\" /><property name=\"top\" type=\"short\" value=\"" + std::to_string(i % 400) +
                             "\" /><property name=\"right\" type=\"short\" value=\"" + std::to_string(i % 700 + 40) +
                             "\" /><property name=\"bottom\" type=\"short\" value=\"" + std::to_string(i % 400 + 20) +
                             "\" />";
    const std::string variable = "$plc.v" + std::to_string((window * kWidgetsPerWindow + i) % 1000);
    switch (i % 4) {
    case 0:
        return "<widget name=\"" + name + "\" class=\"rectangle\"><properties>" + rect +
               "</properties><dynamics><dynamic propname=\"fillcolor\" expression=\"(" + variable +
               ")?0xff:0x0\" type=\"color_digit\"><type_params expression=\"" + variable +
               "\" opencolor=\"0xff\" closecolor=\"0x0\" /></dynamic></dynamics><events><event name=\"click\">"
               "<![CDATA[setvar(\"" + variable + "\", " + variable + " + 1);]]></event></events></widget>\n";
    case 1:
        return "<widget name=\"" + name + "\" class=\"text\"><properties>" + rect +
               "</properties><dynamics><dynamic propname=\"text\" expression=\"(float2str3((" + variable +
               "),5,1))\" type=\"text_float\"><type_params expression=\"" + variable +
               "\" int_width=\"5\" dec_width=\"1\" /></dynamic></dynamics></widget>\n";
    case 2:
        return "<widget name=\"" + name + "\" class=\"numinput\"><properties>" + rect +
               "<property name=\"varname\" type=\"string\" length=\"32\" value=\"" + variable +
               "\" /></properties></widget>\n";
    default:
        return "<widget name=\"" + name + "\" class=\"ellipse\"><properties>" + rect + "</properties></widget>\n";
    }
}

void WriteProject(const std::filesystem::path& folder)
{
    std::string rtdb = "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<rtdbs><rtdb name=\"plc\">\n";
    for (int v = 0; v < 1000; ++v)
        rtdb += "<data name=\"v" + std::to_string(v) + "\" type=\"float\" init=\"0\" />\n";
    WriteFile(folder / "rtdb.xml", rtdb + "</rtdb></rtdbs>\n");
    WriteFile(folder / "hmifuncs.xml", "<functions><function name=\"setvar\" /></functions>");
    std::string list = "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<hmiwindow>\n";
    for (int window = 0; window < kWindows; ++window) {
        const std::string file = "window" + std::to_string(window) + ".xml";
        list += "<window name=\"" + file + "\" caption=\"\" filename=\"" + file + "\" />\n";
        std::string text = "<?xml version=\"1.0\" encoding=\"GB2312\"?>\n<hmiwidget>\n<widget name=\"window\" "
                           "class=\"window\"><properties><property name=\"right\" type=\"short\" value=\"800\" />"
                           "<property name=\"bottom\" type=\"short\" value=\"480\" /></properties></widget>\n";
        for (int i = 0; i < kWidgetsPerWindow; ++i)
            text += Widget(window, i);
        WriteFile(folder / file, text + "</hmiwidget>\n");
    }
    WriteFile(folder / "hmiwindow.xml", list + "</hmiwindow>\n");
}

} // namespace

int main()
{
    RegisterBuiltinWidgetClasses();
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "kelvo-workspace-bench";
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    WriteProject(folder);
    const std::string project = folder.string() + "/";
    std::printf("project: %d windows of %d widgets\n", kWindows, kWidgetsPerWindow);

    std::size_t findings = 0, uses = 0, changes = 0;
    const double load = MedianMilliseconds(kRepetitions, [&] {
        for (const ProjectWindowFile& window : FindProjectWindows(project).files) {
            CTamloDoc document;
            document.Load(window.path);
        }
    });
    const double check = MedianMilliseconds(kRepetitions, [&] { findings = CheckProject(project).size(); });
    const double find = MedianMilliseconds(kRepetitions, [&] {
        std::vector<ReferenceUse> found;
        FindProjectReferences(project, "$plc.v4", found);
        uses = found.size();
    });
    const double rename = MedianMilliseconds(kRepetitions, [&] {
        ProjectRename plan;
        PlanProjectRename(project, "$plc.v4", "$plc.four", false, plan);
        changes = plan.changes.size();
    });
    std::printf("load the windows alone:     %8.0f ms\n", load);
    std::printf("check the project:          %8.0f ms  (%.2f x load, %zu findings)\n", check, check / load, findings);
    std::printf("find references:            %8.0f ms  (%.2f x load, %zu uses)\n", find, find / load, uses);
    std::printf("plan a rename:              %8.0f ms  (%.2f x load, %zu changes, checked saves of the changed windows)\n",
                rename, rename / load, changes);
    std::filesystem::remove_all(folder);
    return 0;
}
