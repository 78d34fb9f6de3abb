#pragma once
// The standard controls: their class names and the one call that registers them all.

namespace plat {
void RegisterControlClasses();
}
