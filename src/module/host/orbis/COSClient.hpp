#pragma once

namespace orbis {

/// The host's calling context, passed on with every invocation. Opaque.
class COSClient;

} // namespace orbis
