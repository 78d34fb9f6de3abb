#pragma once
// Owner of a result-buffer chain that is assembled one element at a time and handed to the
// host as a LISP list. Strings and list marks are appended with the plus operators; the chain
// is made only by acutBuildList and freed only by acutRelRb, when the owner ends, also after
// the chain was handed to acedRetList (which copies it).

#include "host/ads/Resbuf.h"

class ads_list_user {
public:
    ads_list_user() = default;
    ~ads_list_user();
    ads_list_user(const ads_list_user&) = delete;
    ads_list_user& operator=(const ads_list_user&) = delete;

    // Appends a chain of any length, which the list then owns. A null chain (a mark whose node
    // could not be made) is reported with acdbFail and leaves the list as it was.
    ads_list_user& operator+(resbuf* chain);
    // Appends one RTSTR node with a copy of `text`. A node that cannot be made is reported with
    // acdbFail and leaves a gap: the list lacks that one element.
    ads_list_user& operator+(const char* text);

    resbuf* first = nullptr;
    resbuf* last = nullptr;
};
