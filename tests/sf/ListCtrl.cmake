# Tests of this control family are added here with tallix_add_test(...).
