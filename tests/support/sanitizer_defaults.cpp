// What the sanitizers have to know of our programs, in every test program and fuzzer, so that one is run by
// hand as by ctest. They look for functions of these names when they start; other programs never call them.

extern "C" {

// The runtime of clang 14 takes a thread-local block at some addresses for one with a header of glibc 2.19
// and ends while it looks for leaks. Told not to look at these blocks, it counts what they hold as reachable.
const char* __asan_default_options();
const char* __asan_default_options()
{
    return "intercept_tls_get_addr=0";
}

const char* __ubsan_default_options();
const char* __ubsan_default_options()
{
    return "print_stacktrace=1";
}

// Held by the libraries for the life of the process; and an error that ends the program passes through Qt's
// event code, which was built without clean-up for it.
const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig\n"
           "leak:libdbus\n"
           "leak:libglib\n"
           "leak:QtSharedPointer::ExternalRefCountData::getAndRef\n";
}
}
