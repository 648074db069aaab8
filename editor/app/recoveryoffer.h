#pragma once

#include <QString>

class CEditorPrompts;
class CMainFrame;
class CRecoveryKeeper;

// Offers the windows that editors which are gone left unsaved under the recovery root, and does
// what the user chooses. Restored windows open modified, as windows of their own files (one that
// was never saved as a new window), in place of an unmodified window of the same file; their
// copies move into this editor's session. A copy that cannot be restored stays for the next
// start, and so does every copy when the user decides later.
void OfferAbandonedWindows(const QString& root, CMainFrame& frame, CRecoveryKeeper& keeper,
                           CEditorPrompts& prompts);
