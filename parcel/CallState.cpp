#include "parcel/CallState.h"

ParcelDialog* ActiveDialog = nullptr;
int CancelPressed = 0;
TableCopy LastTable;
std::string ModulePath;
