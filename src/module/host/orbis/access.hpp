#pragma once

namespace orbis {

/// Who may use a member: anyone, the class and its subclasses, the class itself, nobody.
enum class MemberAccess : int { Public = 0, Protected = 1, Private = 2, NoAccess = 5 };

/// A refinement of `MemberAccess`. The default leaves the decision to `MemberAccess`.
enum class ExtendedMemberAccess : int { None = 0 };

/// Who may use a class.
enum class ClassAccess : int { Public = 0, Private = 2 };

/// What arrays of objects of a class may hold.
enum class COSArrayNature : int { Homogeneous = 0, Heterogeneous = 1 };

/// How objects of a class are connected to others.
enum class COSConnectivity : int { None = 0, Up = 1, Down = 2 };

/// How a handle holds its object. A weak handle keeps no object alive and is null once the object is gone.
enum class COSReferenceType : int { Weak = 0, Strong = 1 };

} // namespace orbis
