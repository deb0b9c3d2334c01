#pragma once

// The policies of the native types that can be published without a further include: descriptions bring them along.
#include "orbis/factory/CharPolicy.hpp"
#include "orbis/factory/CharPtrPolicy.hpp"
#include "orbis/factory/DataTypePolicy.hpp"
#include "orbis/factory/EnumClassArrayPolicy.hpp"
#include "orbis/factory/EnumClassPolicy.hpp"
#include "orbis/factory/EnumClassVelmaraImplementedPolicy.hpp"
#include "orbis/factory/HvArrayPolicy.hpp"
#include "orbis/factory/HvArrayReferenceCountedPolicy.hpp"
#include "orbis/factory/PrimitivePolicy.hpp"
#include "orbis/factory/StringPolicy.hpp"
#include "orbis/factory/UnicodeCharPtrPolicy.hpp"
#include "orbis/factory/UnicodeStringPolicy.hpp"
#include "orbis/factory/unicodeStringContainers.hpp"
