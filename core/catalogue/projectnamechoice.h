#pragma once

#include "widgets/hmiwidgetprop.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The project's names of one kind (history databases, data logs) as a widget offers them in a
// combo row, and the choice among them. The names are read once, when the widget is made.
//
// A window file may name one the project does not list (its history.xml was edited, or the
// window comes from another project). The widget keeps that name and writes it back as it is:
// the kept name stands after the listed ones, at index Count(), and the combo shows it marked
// as not in the project. It stays there while the widget lives, so that a user who tried a
// listed name can go back to it; the file gets the bare name.
class ProjectNameChoice {
public:
    // Reads the names with one of the project's name-list readers; `kind` says what they name
    // ("history database") in the notices.
    ProjectNameChoice(int (*reader)(std::string names[], int& count), int capacity, const char* kind);
    ProjectNameChoice(const ProjectNameChoice&) = delete; // the choices point into the names
    ProjectNameChoice& operator=(const ProjectNameChoice&) = delete;

    // Makes the record's combo list show these names, now and after a name is kept.
    void ShowIn(CHmiWidgetProp& record);
    // The name at an index: a listed one, or the kept one at Count(); empty past them.
    std::string NameAt(std::int32_t index) const;
    // Whether a widget that chooses `index` writes `name` from the project's list: the listed
    // name there, or no name at 0 when the project lists none (what every new widget writes
    // then). Without a name: whether the project offers the index at all.
    bool Offers(std::int32_t index, const std::optional<std::string>& name = std::nullopt) const;
    // The first index that Offers the name, or -1.
    std::int32_t IndexOf(const std::string& name) const;
    std::int32_t Count() const { return std::int32_t(m_names.size()); }

    // Keeps a name the project does not offer and returns its index. `detail` says what else the
    // widget keeps with it ("index 3"); the combo shows "name (detail, not in the project)".
    std::int32_t Keep(std::string name, std::string detail = {});
    bool IsKept(std::int32_t index) const { return m_kept && index == Count(); }
    // Keeps what `other` keeps, for a copy of a widget.
    void KeepAsIn(const ProjectNameChoice& other);
    // Tells the user, while a window file is read, that the widget keeps a name the project
    // does not list.
    void ReportKept(std::string_view widgetKind, std::string_view widgetName) const;

private:
    void UpdateChoices();

    const char* m_kind;
    std::vector<std::string> m_names;
    std::optional<std::string> m_kept;
    std::string m_keptDetail;
    std::string m_keptLabel;
    std::vector<const char*> m_choices;
    CHmiWidgetProp* m_record = nullptr; // not owned: a record of the widget that owns this choice
};
