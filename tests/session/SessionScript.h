#pragma once
// The whole session, in the order a user would go: look at the empty window,
// add and fill 50 rows, work every calculator mode, preview each scene,
// delete some rows, "Clear All", and close through the toolbar's button.

#include "tests/session/SessionUser.h"

#include <QString>

class CMainDlgEventImp;
class QWidget;

class CSessionScript {
public:
    CSessionScript(CMainDlgEventImp* main, int rows, int previewMs);

    // Runs inside the program's event loop; returns after the close click.
    void Run();
    bool ReachedEnd() const { return m_reachedEnd; }
    int Failures() const { return m_user.Failures(); }

private:
    template <class F>
    void Step(const char* name, F work);
    void CheckEmptyWindow();
    void PreviewScene(int scene, QWidget* previewButton);
    void Close();

    CSessionUser m_user;
    CMainDlgEventImp* m_main;
    int m_rows;
    int m_previewMs;
    bool m_reachedEnd = false;
};
