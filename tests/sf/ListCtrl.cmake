tallix_add_test(sf_listctrl_tests
  SOURCES SfTestSupport.cpp ListCtrlTestSupport.cpp ListCtrlCellsTest.cpp ListCtrlTableTest.cpp
  LIBS sf Qt6::Test
  QT)
add_dependencies(sf_listctrl_tests tallix_skins tallix_data)
