#pragma once

#include "canvastools.h"

// What the editor's windows share during one run: the mouse tool that is current for every
// canvas, and the numbering of untitled windows. The application owns the one session and hands
// it to the main frame; tests make a session of their own, so no state outlives a test.
// The class the placing tool creates stays CHmiWidget::CurWidgetClass, which widget libraries
// can read too.
class CEditorSession {
public:
    CCanvasTools& Tools() { return m_tools; }
    const CCanvasTools& Tools() const { return m_tools; }

    // New windows are numbered 1, 2 and so on until they are saved.
    int NextUntitledNumber() { return ++m_untitledCount; }

private:
    CCanvasTools m_tools;
    int m_untitledCount = 0;
};
