# The list control: a table whose cells hold pages of the framework's controls.
target_sources(sf PRIVATE
  qt/SFQTListCtrl.cpp
  qt/SFQTListCtrlCells.cpp
  qt/SFQTListCtrlRegisters.cpp
  qt/SFQTListCtrlRows.cpp
  qt/SFQTListRowDelegate.cpp
  qt/SFFactoryListCtrl.cpp)
# The row model estimates each row's bit rate.
target_link_libraries(sf PRIVATE streams_engine)
