#pragma once

/// Umbrella header: everything a module needs to publish classes, enumerations and functions. Each header can also be
/// included alone.

// First, and directly: compilers list how they got to the header of an error.
#include "orbis/factory/base/refusals.hpp"
#include "orbis/factory/overload.hpp"

#include "orbis/factory/describe.hpp"

#include "orbis/factory/Module.hpp"
#include "orbis/factory/ObjectHandle.hpp"
#include "orbis/factory/base/Exception.hpp"
#include "orbis/factory/check.hpp"
#include "orbis/factory/classes/EnumerationClassInfo.hpp"
#include "orbis/factory/classes/HandleClassInfo.hpp"
#include "orbis/factory/classes/NonHandleClassInfo.hpp"
#include "orbis/factory/classes/ShareableHandleClassInfo.hpp"
#include "orbis/factory/classes/StdShareableHandleClassInfo.hpp"
#include "orbis/factory/describeFunctions.hpp"
#include "orbis/factory/marshaling/StaticCastPolicy.hpp"
#include "orbis/factory/marshaling/ValuePolicy.hpp"
#include "orbis/factory/ownership/HvmScoped.hpp"
#include "orbis/factory/registerOrbisPackage.hpp"
#include "orbis/factory/resultOwners.hpp"
#include "orbis/factory/types/NamedPointerPolicies.hpp"
#include "orbis/factory/types/NumericSpanPolicy.hpp"
#include "orbis/factory/types/NumericVectorPolicy.hpp"
#include "orbis/factory/types/ObjectVectorPolicy.hpp"
#include "orbis/factory/types/OptionalPolicy.hpp"
#include "orbis/factory/types/SharedPointerPolicy.hpp"
#include "orbis/factory/types/StringViewPolicy.hpp"
#include "orbis/factory/types/sharedObjectVectors.hpp"
#include "orbis/factory/types/stringVectors.hpp"
#include "orbis/factory/version.hpp"
#include "orbis/factory/withDefaults.hpp"
