tallix_add_test(sf_inputs_tests
  SOURCES SfTestSupport.cpp InputsTest.cpp
  LIBS sf Qt6::Test
  QT)
