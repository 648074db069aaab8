#pragma once

#include "hmitypes.h"

#include <string>
#include <vector>

class CHmiView;

// The main frame's list of widget names (a combo box in the editor), kept in step with the
// document whose widgets it lists.
class CWidgetNameList {
public:
    virtual ~CWidgetNameList() = default;
    virtual void AddWidgetName(const std::string& name, bool select) = 0;
    virtual void RemoveWidgetName(const std::string& name) = 0;
};

// The document of one HMI window.
class CTamloDoc {
public:
    CTamloDoc() = default;
    CTamloDoc(const CTamloDoc&) = delete;
    CTamloDoc& operator=(const CTamloDoc&) = delete;
    virtual ~CTamloDoc() = default;

    // Views that show this document; not owned.
    void AddView(CHmiView* view);
    void RemoveView(CHmiView* view);
    const std::vector<CHmiView*>& Views() const { return m_views; }

    // Repaints an area (window coordinates) in every view.
    void UpdateAllViews(const HmiRect& area) const;

    bool IsModified() const { return m_bModified; }
    void SetModifiedFlag(bool modified = true) { m_bModified = modified; }

    void SetWidgetNameList(CWidgetNameList* list) { m_pNameList = list; }
    CWidgetNameList* GetWidgetNameList() const { return m_pNameList; }

private:
    std::vector<CHmiView*> m_views;
    CWidgetNameList* m_pNameList = nullptr;
    bool m_bModified = false;
};
