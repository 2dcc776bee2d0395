// The result of a command: a document, which is written as JSON or as text, or a failure. Commands build
// documents from literals such as {{"name", name}, {"rows", rows}}.
#ifndef WORKBENCH_LIB_DOCUMENT_H
#define WORKBENCH_LIB_DOCUMENT_H

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

// A value: null, a Boolean, a number, a text (UTF-8), a list of values, or an object, whose fields keep the
// order in which they were added.
class Document {
public:
    struct Field;
    using List = std::vector<Document>;
    using Object = std::vector<Field>;

    Document();
    Document(std::nullptr_t);
    Document(const char* text);
    Document(std::string text);
    // An object when every element is a list of a text and a value, otherwise a list.
    Document(std::initializer_list<Document> elements);
    template <typename Number, typename = std::enable_if_t<std::is_arithmetic_v<Number>>>
    Document(Number number) : Document() {
        using Kept = std::conditional_t<std::is_same_v<Number, bool>, bool,
                                        std::conditional_t<std::is_integral_v<Number>, int64_t, double>>;
        value = static_cast<Kept>(number);
    }
    // A list of numbers, or of such lists.
    template <typename Element, size_t N,
              typename = std::enable_if_t<
                  std::is_arithmetic_v<std::remove_all_extents_t<Element>> && !std::is_same_v<Element, char>>>
    Document(const Element (&elements)[N]) : Document(MakeList()) {
        for (const Element& element : elements)
            Add(element);
    }
    Document(const Document& other);
    Document(Document&& other) noexcept;
    Document& operator=(const Document& other);
    Document& operator=(Document&& other) noexcept;
    ~Document();

    static Document MakeList(); // without elements

    bool IsNull() const { return Is<std::nullptr_t>(); }
    bool IsBool() const { return Is<bool>(); }
    bool IsInteger() const { return Is<int64_t>(); }
    bool IsNumber() const { return IsInteger() || Is<double>(); }
    bool IsText() const { return Is<std::string>(); }
    bool IsList() const { return Is<List>(); }
    bool IsObject() const { return Is<Object>(); }

    // The value itself; it must be of this kind.
    bool Bool() const { return std::get<bool>(value); }
    int64_t Integer() const { return std::get<int64_t>(value); }
    double Real() const { return IsInteger() ? static_cast<double>(Integer()) : std::get<double>(value); }
    const std::string& Text() const { return std::get<std::string>(value); }

    // The elements or the fields; none for any other kind of value. A temporary returns them by value, so
    // that a range loop over them is safe.
    const List& Elements() const&;
    List& Elements() &;
    List Elements() &&;
    const Object& Fields() const&;
    Object Fields() &&;

    // Appends to a list; null becomes a list.
    void Add(Document element);
    // A field of an object, added if missing; null becomes an object.
    Document& operator[](const std::string& name);
    // Null when there is no such field.
    const Document& operator[](const std::string& name) const;

private:
    template <typename Kind>
    bool Is() const {
        return std::holds_alternative<Kind>(value);
    }

    std::variant<std::nullptr_t, bool, int64_t, double, std::string, List, Object> value;
};

struct Document::Field {
    std::string name;
    Document value;
};

constexpr int kExitFailed = 1; // something is missing or broken
constexpr int kExitUsage = 2;  // the command line or a script is wrong

// Ends the program. The message says what is wrong, where, and what to do.
struct Failure : std::runtime_error {
    Failure(int code, const std::string& message) : std::runtime_error(message), exitCode(code) {}
    int exitCode;
};

#endif
