tallix_add_test(sf_videowindow_layout_tests
  SOURCES VideoWindowLayoutTest.cpp
  LIBS sf)

