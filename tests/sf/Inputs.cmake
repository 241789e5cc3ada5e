tallix_add_test(sf_inputs_tests
  SOURCES SfTestSupport.cpp InputsTestSupport.cpp InputsEditTest.cpp InputsComboTest.cpp
          InputsStaticTest.cpp InputsSpinnerTest.cpp
  LIBS sf Qt6::Test
  QT)
