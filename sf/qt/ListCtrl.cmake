# The list control: a table whose cells hold pages of the framework's controls.
target_sources(sf PRIVATE
  qt/SFQTListCtrl.cpp
  qt/SFQTListCtrlCells.cpp
  qt/SFQTListCtrlRegisters.cpp
  qt/SFQTListCtrlRows.cpp
  qt/SFQTListRowDelegate.cpp
  qt/SFFactoryListCtrl.cpp)
