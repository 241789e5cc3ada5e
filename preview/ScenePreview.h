#pragma once
// Runs the modal preview of a scene's sample clip and returns when it closes.

// scene: 1, 2 or 3 plays that scene's clip; any other opens the dialog with
// nothing playing. parent: the GetUIWnd() of the window it belongs to, or
// null. Returns what DoModalDlg returns, 0 if the dialog could not be made.
int ShowScenePreview(int scene, void* parent);
