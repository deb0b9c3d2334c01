#pragma once

// The policies of the native types that need no further include: `describe.hpp` includes them.
#include "orbis/factory/marshaling/PrimitivePolicy.hpp"
#include "orbis/factory/types/CharPolicy.hpp"
#include "orbis/factory/types/CharPtrPolicy.hpp"
#include "orbis/factory/types/DataTypePolicy.hpp"
#include "orbis/factory/types/EnumClassArrayPolicy.hpp"
#include "orbis/factory/types/EnumClassPolicy.hpp"
#include "orbis/factory/types/EnumClassVelmaraImplementedPolicy.hpp"
#include "orbis/factory/types/HvArrayPolicy.hpp"
#include "orbis/factory/types/HvArrayReferenceCountedPolicy.hpp"
#include "orbis/factory/types/StringPolicy.hpp"
#include "orbis/factory/types/UnicodeCharPtrPolicy.hpp"
#include "orbis/factory/types/UnicodeStringPolicy.hpp"
#include "orbis/factory/types/unicodeStringVector.hpp"
