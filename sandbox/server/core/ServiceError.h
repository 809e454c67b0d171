// The errors that a client is told.
#pragma once

#include <stdexcept>
#include <string>

namespace server
{

// Numbers of the errors that the protocol knows, as 32-bit signed values.
enum class ErrorNumber : int
{
    InvalidRequest = static_cast<int>(0x80070057),
    AccessDenied = static_cast<int>(0x80070005),
    NotFound = static_cast<int>(0x80070490),
    OtherProtocol = static_cast<int>(0x8004070C),
    RelatedProjectClosed = static_cast<int>(0x8004073C),
    NotOwner = static_cast<int>(0x8004C6A3),
    ProjectClosed = static_cast<int>(0x8004C6A4),
    StageLocked = static_cast<int>(0x8004C6A5),
    BeingRouted = static_cast<int>(0x8004C6A6),
    RoutedAndApproved = static_cast<int>(0x8004C6A7),
    UploadNotPossible = static_cast<int>(0x8004C6A8),
    AuthenticationRequired = static_cast<int>(0x8004C6A9),
};

// What a client receives as an error document.
class ServiceError : public std::runtime_error
{
public:
    ServiceError(int number, std::string source, const std::string& description)
        : std::runtime_error{description}, m_number{number}, m_source{std::move(source)}
    {}
    ServiceError(ErrorNumber number, std::string source, const std::string& description)
        : ServiceError{static_cast<int>(number), std::move(source), description}
    {}

    [[nodiscard]] int Number() const noexcept { return m_number; }
    [[nodiscard]] const std::string& Source() const noexcept { return m_source; }

private:
    int m_number;
    std::string m_source;
};

} // namespace server
