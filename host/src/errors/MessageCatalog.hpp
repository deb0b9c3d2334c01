#pragma once

#include "errors/ErrorKinds.hpp"

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace velmara {

/// The message texts that modules added to a virtual machine, above the host's own texts.
class MessageCatalog {
public:
    /// Replaces an earlier text of the same key.
    void add(std::string_view catalog, std::string_view key, std::string_view text);

    /// The text with its placeholders; null when neither this catalog nor the host has one.
    char const* find(std::string_view catalog, std::string_view key) const;

private:
    std::map<std::string, std::string, std::less<>> texts_; ///< by "catalog:key"
};

/// Where errors find their texts and identifiers: the virtual machine that is current on this thread. `Machine` is the
/// only kind.
class MessageSource {
public:
    static MessageSource* current() { return current_; }
    MessageCatalog& messages() { return messages_; }
    ErrorKinds& errorKinds() { return errorKinds_; }

protected:
    MessageSource() = default;
    ~MessageSource() = default;

    static constinit thread_local MessageSource* current_;

private:
    MessageCatalog messages_;
    ErrorKinds errorKinds_;
};

/// The text of an error in the current virtual machine's catalog, with its arguments filled in; the full message
/// id when there is no text for it. Works without a virtual machine for the host's own errors.
std::string messageText(char const* catalog, char const* key, std::vector<std::string> const& arguments);

/// Replaces each {N} by argument N. "{{" is a literal brace; a placeholder without an argument stays as it is.
std::string fillPlaceholders(std::string_view text, std::vector<std::string> const& arguments);

} // namespace velmara
