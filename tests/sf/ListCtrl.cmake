tallix_add_test(sf_listctrl_tests
  SOURCES ListCtrlTest.cpp
  LIBS tallix_sf_test_support
  QT)
