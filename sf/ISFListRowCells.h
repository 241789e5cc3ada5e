#pragma once
// What a row binder may reach of a list control: the controls of a row, by
// the kind of cell that holds them, and the list's own settings.

#include "sf/SFFwd.h"

#include <utility>
#include <vector>

class ISFListRowCells {
public:
    // The row's control of each kind of cell; null where the row has none.
    // type is that of SetItemComboBox.
    virtual CSFComboBox* RowCombo(int type, int row) const = 0;
    // The button beside a combo of type SF_LIST_COMBO_WITH_BUTTON.
    virtual CSFButton* RowComboButton(int row) const = 0;
    // The edit beside a combo of type SF_LIST_COMBO_WITH_EDIT.
    virtual CSFEditCtrl* RowComboEdit(int row) const = 0;
    // The edit of SetItemEditCtrl.
    virtual CSFEditCtrl* RowEdit(int row) const = 0;
    virtual CSFNumSpiner* RowSpiner(int row) const = 0;
    // The row's check, 1 or 0.
    virtual int RowChecked(int row) const = 0;
    // Every spinner of the list with its row, in the list's own order.
    virtual std::vector<std::pair<CSFNumSpiner*, int>> RowSpiners() const = 0;
    // What SetArea stored.
    virtual int Area() const = 0;
    // The list's handler; may be null.
    virtual ISFListCtrlEvent* Handler() const = 0;

protected:
    ~ISFListRowCells() {}
};
