tallix_add_test(sf_inputs_tests
  SOURCES InputsTest.cpp
  LIBS tallix_sf_test_support
  QT)
