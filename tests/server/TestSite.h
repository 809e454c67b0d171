#pragma once

#include "core/Seed.h"
#include "core/Site.h"
#include "shell/DataFolder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <pugixml.hpp>

namespace server
{

// Any value as a parameter on the wire: every byte percent-encoded.
inline std::string Encoded(std::string_view text)
{
    std::string encoded;
    for (const char c : text) {
        char buffer[4];
        std::snprintf(buffer, sizeof buffer, "%%%02X", static_cast<unsigned char>(c));
        encoded += buffer;
    }
    return encoded;
}

// A site on the built-in seed and a data folder of its own, asked as a client asks.
class TestSite
{
public:
    explicit TestSite(std::string_view user = "") { Start(user); }

    // Ends this server and starts one on the same folder.
    void Start(std::string_view user)
    {
        m_site = std::make_unique<Site>(Service{nlohmann::json::parse(SeedText()), user, Archive{m_folder.Path()},
                                                [] { return "2025-06-07T13:08:09"; }});
    }

    [[nodiscard]] Answer Handle(const Request& request) { return m_site->Handle(request); }
    [[nodiscard]] Answer Get(const std::string& target) { return Handle({"GET", target, {}, {}}); }

    [[nodiscard]] std::string Ask(const std::string& operation, const std::vector<std::string>& parameters = {})
    {
        std::string fields = "Op=" + operation + "&P1=v6";
        int number = 0;
        for (const auto& value : parameters)
            fields += "&P" + std::to_string(number += 2) + "=" + Encoded(value);
        return Handle({"POST", "/WebServices/offi.asp", {}, fields}).body;
    }

    // The attribute of the first row, or the number of the error document that came instead.
    [[nodiscard]] std::string Field(const std::string& operation, const std::vector<std::string>& parameters,
                                    const std::string& attribute)
    {
        pugi::xml_document document;
        document.load_string(Ask(operation, parameters).c_str());
        return document.select_node(("//*[@" + attribute + "]/@" + attribute).c_str()).attribute().value();
    }

    [[nodiscard]] Answer Upload(const std::string& name, const std::string& bytes)
    {
        return Handle({"POST",
                       "/WebServices/UploadToTransfer.ashx",
                       {{"Content-Type", "multipart/form-data; boundary=xyz"}},
                       "--xyz\r\nContent-Disposition: form-data; name=\"FileField\"; filename=\"" + name +
                           "\"\r\nContent-Type: application/upload\r\n\r\n" + bytes + "\r\n--xyz--\r\n"});
    }

    // Uploads a file and records it for a deliverable, an activity or a gate document; the reply.
    [[nodiscard]] std::string Save(const std::string& type, int project, int id, const std::string& status = "2",
                                   const std::string& notes = "")
    {
        (void)Upload("plan.pptx", "slides");
        return Ask("OFFI_API." + type + ".UploadAndUpdate",
                   {"Microsoft PowerPoint", std::to_string(project), std::to_string(id), "plan.pptx", "Author",
                    "Comment", "1", status, notes});
    }

    [[nodiscard]] const std::filesystem::path& Folder() const { return m_folder.Path(); }
    [[nodiscard]] std::vector<Version> Recorded() const { return Archive{m_folder.Path()}.Versions(); }

private:
    DataFolder m_folder{""};
    std::unique_ptr<Site> m_site;
};

// The number of an error document, 0 for any other answer.
inline int ErrorNumberOf(const std::string& answer)
{
    pugi::xml_document document;
    document.load_string(answer.c_str());
    return document.child("error").attribute("number").as_int();
}

} // namespace server
