tallix_add_test(sf_buttons_tests
  SOURCES ButtonTest.cpp
  LIBS tallix_sf_test_support
  QT)
add_dependencies(sf_buttons_tests tallix_skins)
