#pragma once
// The handler of KERVDIALOG: the table's stock from the LISP arguments (or, without arguments,
// the last accepted table), the modal parcel dialog, and on acceptance a copy of the table for
// the next call. LISP's value on acceptance is set by the dialog's OK path.

// RTNORM after OK; RTERROR after Cancel (LISP gets nil) or for layers and counts of different
// length (no dialog, no value).
int KervDialog();
