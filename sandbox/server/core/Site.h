// The server without its port: an answer for every request.
#pragma once

#include "core/Answers.h"
#include "core/Service.h"

namespace server
{

// The whole server behind the connection: chooses by path between the web service, the upload and the pages.
class Site
{
public:
    explicit Site(Service service) : m_service{std::move(service)} {}

    // Never throws; a failure of the server itself becomes a status 500.
    [[nodiscard]] Answer Handle(const Request& request) noexcept;

private:
    [[nodiscard]] Answer Route(const Request& request);
    [[nodiscard]] Answer WebService(const Request& request);
    [[nodiscard]] Answer Upload(const Request& request);
    [[nodiscard]] Answer Page(const Request& request);

    Service m_service;
};

} // namespace server
