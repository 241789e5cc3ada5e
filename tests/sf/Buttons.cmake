tallix_add_test(sf_buttons_tests
  SOURCES SfTestSupport.cpp ButtonTest.cpp
  LIBS sf Qt6::Test
  QT)
add_dependencies(sf_buttons_tests tallix_skins)
