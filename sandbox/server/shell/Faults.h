// The faults file: rules by which a request is answered late, wrongly or not at all.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace server
{

// Where an answer is cut off by a reset of the connection.
enum class Drop
{
    Nowhere,
    BeforeAnswer,  // before any byte of an answer; the request is not carried out
    WithinStatus,  // before the code of the status line
    WithinHeaders, // after the status line and the first header
    WithinBody,    // after half of the body
};

struct Fault
{
    int delayMs = 0;
    std::optional<int> status;
    std::optional<std::string> body;
    std::string contentType; // empty: as the body looks
    std::string location;    // where a redirect leads
    Drop drop = Drop::Nowhere;
    std::optional<int> heldIn; // the edition of the faults file that has to pass before the answer
};

// The rules of a faults file. The first rule that matches a request and is not used up applies to it.
class Faults
{
public:
    // An empty path means that there are never any.
    explicit Faults(std::filesystem::path file) : m_file{std::move(file)} {}

    // Reads the file again; uses of a rule count as long as its content stays the same. A missing or empty file means
    // no rule. Throws std::runtime_error for a file that cannot be understood.
    [[nodiscard]] std::optional<Fault> Next(std::string_view target, std::string_view body);

    // Reads the file again: whether the answer has to wait still, because the file is what it was.
    [[nodiscard]] bool Holds(const Fault& fault);

private:
    void Read();

    std::filesystem::path m_file;
    std::string m_content;
    int m_edition = 0; // grows whenever the content changes
    std::map<std::size_t, int> m_uses;
};

} // namespace server
