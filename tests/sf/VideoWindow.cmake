tallix_add_test(sf_videowindow_layout_tests
  SOURCES VideoWindowLayoutTest.cpp
  LIBS sf)

tallix_add_test(sf_videowindow_tests
  SOURCES SfTestSupport.cpp VideoWindowTest.cpp
  LIBS sf Qt6::Test
  QT)
# The tests load the generated skin pictures.
add_dependencies(sf_videowindow_tests tallix_skins)
