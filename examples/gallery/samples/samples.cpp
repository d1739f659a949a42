// The samples are QML; a library needs one file of C++.
