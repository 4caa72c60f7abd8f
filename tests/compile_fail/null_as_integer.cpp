// expect: cannot initialize a variable of type 'int'
// Shows that the check itself works.
#ifdef MUST_FAIL
int number = nullptr;
#else
int number = 0;
#endif
