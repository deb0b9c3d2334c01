#include "orbis/factory.hpp"
#include "orbis/factory/notNull.hpp"
#include "orbis/factory/types/NumericVectorPolicy.hpp"
#include "orbis/factory/types/function.hpp"
#include "orbis/factory/types/nestedVectors.hpp"
#include "orbis/factory/types/variant.hpp"

#include <sqlite3.h>

#include <cstdint>
#include <stdexcept>

using Bytes = std::vector<std::uint8_t>;
using Value = std::variant<std::monostate, std::int64_t, double, std::string, Bytes>;
using Row = std::vector<Value>;

struct Error : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct ConstraintError : Error {
    using Error::Error;
};

/// A handle of C, which is closed at its end.
template <class T, int (*close)(T*)>
struct Handle {
    T* raw = nullptr;
    Handle() = default;
    Handle(Handle const&) = delete;
    ~Handle() { close(raw); }
};

Value fromSql(sqlite3_value* value)
{
    auto const copy = [value]<class T>(T, auto const* bytes) { return T(bytes, bytes + sqlite3_value_bytes(value)); };
    switch (sqlite3_value_type(value)) {
    case SQLITE_INTEGER:
        return sqlite3_value_int64(value);
    case SQLITE_FLOAT:
        return sqlite3_value_double(value);
    case SQLITE_TEXT:
        return copy(std::string(), sqlite3_value_text(value));
    case SQLITE_BLOB:
        return copy(Bytes(), static_cast<std::uint8_t const*>(sqlite3_value_blob(value)));
    }
    return {};
}

/// Passes a value to one of the functions `sqlite3_bind_*` or `sqlite3_result_*`.
template <auto null, auto integer, auto real, auto text, auto blob, class... To>
auto toSql(Value const& value, To... to)
{
    if (auto const* held = std::get_if<std::int64_t>(&value))
        return integer(to..., *held);
    if (auto const* held = std::get_if<double>(&value))
        return real(to..., *held);
    if (auto const* held = std::get_if<std::string>(&value))
        return text(to..., held->data(), held->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    if (auto const* held = std::get_if<Bytes>(&value))
        return blob(to..., held->data(), held->size(), SQLITE_TRANSIENT);
    return null(to...);
}

struct Connection {
    explicit Connection(std::string const& path) { check(sqlite3_open(path.c_str(), &handle.raw)); }

    void check(int code)
    {
        if (auto const error = std::exchange(thrown, nullptr))
            std::rethrow_exception(error);
        if (code == SQLITE_CONSTRAINT)
            throw ConstraintError(sqlite3_errmsg(handle.raw));
        if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE)
            throw Error(code == SQLITE_MISUSE ? sqlite3_errstr(code) : sqlite3_errmsg(handle.raw));
    }

    /// Makes the script's function one of SQL. What it throws must not pass through C, so `check` throws it again.
    void define(std::string const& name, int parameters, std::function<Value(Row)> function)
    {
        using Defined = std::pair<Connection&, std::function<Value(Row)>>;
        auto const call = [](sqlite3_context* context, int count, sqlite3_value** values) {
            auto const& [connection, function] = *static_cast<Defined*>(sqlite3_user_data(context));
            try {
                Row row;
                for (int i = 0; i < count; ++i)
                    row.push_back(fromSql(values[i]));
                toSql<sqlite3_result_null, sqlite3_result_int64, sqlite3_result_double, sqlite3_result_text64,
                      sqlite3_result_blob64>(function(std::move(row)), context);
            } catch (...) {
                connection.thrown = std::current_exception();
                sqlite3_result_error_code(context, SQLITE_ABORT);
            }
        };
        auto* const defined = new Defined(*this, std::move(function)); // which the library deletes
        check(sqlite3_create_function_v2(handle.raw, name.c_str(), parameters, SQLITE_UTF8, defined, call, nullptr,
                                         nullptr, [](void* data) { delete static_cast<Defined*>(data); }));
    }

    std::exception_ptr thrown;
    Handle<sqlite3, sqlite3_close> handle;
};

/// Shares its connection, which stays open as long.
struct Statement {
    Statement(std::shared_ptr<Connection> of, std::string const& sql) : connection(std::move(of))
    {
        connection->check(sqlite3_prepare_v2(connection->handle.raw, sql.c_str(), -1, &handle.raw, nullptr));
        connection->check(handle.raw ? SQLITE_OK : SQLITE_MISUSE);
    }

    /// Binds the values, and calls `take` with each row.
    void each(std::function<void(Row)> const& take, Row const& values)
    {
        if (sqlite3_stmt_busy(handle.raw))
            throw Error("the statement is being executed");
        std::shared_ptr<sqlite3_stmt> const resetAtEnd(handle.raw, sqlite3_reset);
        sqlite3_clear_bindings(handle.raw);
        for (int number = 0; Value const& value : values)
            connection->check(toSql<sqlite3_bind_null, sqlite3_bind_int64, sqlite3_bind_double, sqlite3_bind_text64,
                                    sqlite3_bind_blob64>(value, handle.raw, ++number));
        for (int code = 0; connection->check(code = sqlite3_step(handle.raw)), code == SQLITE_ROW;) {
            Row row;
            for (int i = 0; i < sqlite3_column_count(handle.raw); ++i)
                row.push_back(fromSql(sqlite3_column_value(handle.raw, i)));
            take(std::move(row));
        }
    }

    void run(Row const& values)
    {
        each([](Row const&) {}, values);
    }

    std::shared_ptr<Connection> connection;
    Handle<sqlite3_stmt, sqlite3_finalize> handle;
};

void publishModule(orbis::factory::Module& sqlite)
{
    using orbis::factory::NotNull, orbis::factory::withDefaults;
    sqlite.error<Error>("sqlite:error").error<ConstraintError>("sqlite:constraint");
    sqlite.publish<Connection>("Connection", "An open database")
        .constructor<std::string>("path (\":memory:\" for none)")
        .method("define", &Connection::define, "name, parameters, function (of a list)", "Adds a function to SQL");
    sqlite.publish<Statement>("Statement", "SQL with parameters")
        .constructor<NotNull<std::shared_ptr<Connection>>, std::string>("connection, sql")
        .method("run", &Statement::run, "values", withDefaults(Row()))
        .method("each", &Statement::each, "function (of a list), values", withDefaults(Row()), "Calls it for each row");
}
