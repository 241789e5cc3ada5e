#pragma once
// What a list control leaves to the application: the fixed entries of its
// cell combos and what a change in one cell of a row does to the rest of the
// row and to the totals. Without a binder the list is a plain table.

#include "sf/ISFListRowCells.h"

#include <memory>
#include <string>
#include <vector>

class CSFListCtrl;

class ISFListRowBinder {
public:
    virtual ~ISFListRowBinder() {}

    // Entries of a cell combo of this SetItemComboBox type between its title
    // and the entries that the caller passes.
    virtual std::vector<std::wstring> ComboEntries(int type) const = 0;

    // The user chose index in the row's combo of this type. A combo moved
    // from code stays silent, so the binder runs any follow-up itself.
    virtual void ComboChanged(ISFListRowCells& cells, int type, int row, int index) = 0;
    // A click on the button beside a combo.
    virtual void ComboButtonClicked(ISFListRowCells& cells, int row) = 0;
    // The text of the edit beside a combo, or of the row's edit, changed;
    // setting an edit's text from code comes back here at once.
    virtual void ComboEditChanged(ISFListRowCells& cells, int row, const std::wstring& text) = 0;
    virtual void EditChanged(ISFListRowCells& cells, int row, const std::wstring& text) = 0;
    virtual void SpinerChanged(ISFListRowCells& cells, int row) = 0;
    virtual void CheckClicked(ISFListRowCells& cells, int row) = 0;

    // One pass over the row, unless totalsOnly, and over the totals, which go
    // to the list's handler; keepRowText leaves the row's edit as it is.
    virtual void UpdateRow(ISFListRowCells& cells, int row, int totalsOnly, int keepRowText) = 0;
    // 1 when a change of the row is worth a pass.
    virtual int IsRowReady(ISFListRowCells& cells, int row) = 0;
};

// The list takes the binder over; null leaves a plain table. A list that is
// no framework list drops it.
void SFSetListRowBinder(CSFListCtrl* list, std::unique_ptr<ISFListRowBinder> binder);
