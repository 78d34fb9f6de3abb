#pragma once
// Modules' bitmap resources. A module registers the bytes of a BMP file under an id or a name,
// as its resource script would build them in, and LoadBitmap makes a bitmap of them each time
// it is asked.

#include <cstddef>

#include "platform/base/WinTypes.h"

// Keeps a copy of the file's bytes, replacing what the module had under that id or name. Ids
// are 16 bits, as MAKEINTRESOURCE makes them; names compare regardless of case.
void RegisterBitmapResource(HINSTANCE module, int id, const void* bmp, std::size_t size);
void RegisterBitmapResource(HINSTANCE module, const char* name, const void* bmp, std::size_t size);

// A new bitmap of the module's resource `name`, a name or MAKEINTRESOURCE(id); the caller
// deletes it. Null when the module has no such resource, or when its bytes are not a BMP file
// the drawing layer reads (uncompressed, 1 to 32 bits per pixel).
HBITMAP LoadBitmapA(HINSTANCE module, const char* name);
inline HBITMAP LoadBitmap(HINSTANCE module, const char* name) { return LoadBitmapA(module, name); }
