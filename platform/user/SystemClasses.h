#pragma once
// The window classes every program finds registered: the dialog class and the standard
// controls.

namespace plat {
void RegisterSystemClasses();
}
