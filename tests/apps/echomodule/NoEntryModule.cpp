// A shared library that is not a module: it exports no acrxEntryPoint.

extern "C" int NotAnEntryPoint() {
    return 0;
}
