# Video window: the layout model, the control with its sub windows, factory.
target_sources(sf PRIVATE
  SFVideoWindow.cpp
  qt/QTVideoWindowLayout.cpp
  qt/SFQTVideoWindowPlayWnd.cpp
  qt/SFQTVideoWindowSubWnd.cpp
  qt/SFQTVideoWindow.cpp
  qt/SFFactoryVideoWindow.cpp)
