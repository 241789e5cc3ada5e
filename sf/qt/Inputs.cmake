# Edit, combo box, label and number spinner.
target_sources(sf PRIVATE
  qt/SFQTEditCtrl.cpp
  qt/SFQTComboBox.cpp
  qt/SFQTComboDelegate.cpp
  qt/SFQTStatic.cpp
  qt/SFQTNumSpiner.cpp
  qt/SFFactoryInputs.cpp)
