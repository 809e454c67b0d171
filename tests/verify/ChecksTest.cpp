#include "judge/Checks.h"
#include "judge/Failure.h"
#include "judge/Text.h"
#include "judge/Zip.h"

#include <gtest/gtest.h>
#include <map>
#include <zlib.h>

namespace verify
{
namespace
{

constexpr const char* kUpload = "-----------------------------998284F0-10C0-4D3B-8D1C-22EAA672A15D";

std::string Number(std::size_t value, int bytes)
{
    std::string text;
    for (; bytes > 0; --bytes, value >>= 8U)
        text += static_cast<char>(value & 0xFFU);
    return text;
}

// An archive of one stored part.
std::string Zipped(const std::string& name, const std::string& part)
{
    const auto sizes =
        Number(crc32(0, reinterpret_cast<const Bytef*>(part.data()), static_cast<uInt>(part.size())), 4) +
        Number(part.size(), 4) + Number(part.size(), 4);
    const auto local =
        "PK\3\4" + Number(20, 2) + Number(0, 8) + sizes + Number(name.size(), 2) + Number(0, 2) + name + part;
    const auto entry = "PK\1\2" + Number(20, 4) + Number(0, 8) + sizes + Number(name.size(), 2) + Number(0, 16) + name;
    return local + entry + "PK\5\6" + Number(0, 4) + Number(1, 2) + Number(1, 2) + Number(entry.size(), 4) +
           Number(local.size(), 4) + Number(0, 2);
}

std::string Bound(const std::string& server, const std::string& last)
{
    std::string xml =
        "<Properties xmlns:vt='v'><property name='KRX_SYS_Server'><vt:lpwstr>" + server + "</vt:lpwstr></property>";
    for (const std::string name : {"KRX_SYS_ProjectID", "KRX_SYS_DeliverableID", "KRX_SYS_ActivityID",
                                   "KRX_SYS_RelatedFileID", "KRX_SYS_GateDocumentID", "HALVEX_MSExcelReportID"})
        xml += "<property name='" + name + "'><vt:i4>0</vt:i4></property>";
    return Zipped("docProps/custom.xml",
                  xml + "<property name='" + last + "'><vt:i4>0</vt:i4></property></Properties>");
}

// A save that went well: what the tails below are checked against.
std::string Played(const std::string& tail)
{
    const auto file = Bound("http://h:1", "KRX_SYS_TemplateLibraryID");
    const auto sent = std::string{kUpload} + "\r\nfirst\r\nsecond\r\n\r\n" + file + "\r\n" + kUpload + "--\r\n";
    std::map<std::string, std::string> files{
        {"a.pptx", file},
        {"data/1", file},
        {"plain.pptx", Zipped("p", "q")},
        {"other.pptx", Zipped("p", "r")},
        {"broken.pptx", Replaced(Zipped("p", "letters"), "letters", "lessers")},
        {"customUI.xml", "<customUI><tab label='A &amp; B'/><button label=' ' screentip='tip'/></customUI>"},
        {"faults.json", R"([{"delayMs": 2000}])"}};
    const Outcome outcome{
        .server = "http://h:1",
        .requests = {{10, "GET", "/WebServices/offi.asp?Op=A", {{"Name", "value"}}, "", 200},
                     {30, "POST", "/WebServices/UploadToTransfer.ashx", {}, sent, 200},
                     {20, "POST", "/WebServices/offi.asp", {}, "Op=B&P1=\xFF", 200}},
        .versions = nlohmann::json::parse(R"([{"id": 1, "storedAs": "1"}, {"id": 2, "storedAs": "1"}])"),
        .traces = {"1\tone\r\n2\ttwo \x80\r\n3\tthree h:1\r\n"},
        .processor = {{10.35, 1.0}, {11.65, 1.013}, {13.0, 9.0}, {20.4, 9.0}, {21.5, 9.011}},
        .file = [&](const std::string& name) -> std::optional<std::string> {
            const auto found = files.find(name);
            return found == files.end() ? std::nullopt : std::optional{found->second};
        },
        .ribbonFaults = [](const std::string& edition) -> std::optional<std::string> {
            return edition == "none" ? std::nullopt : std::optional<std::string>{edition == "old" ? "no" : ""};
        }};
    try {
        const auto remarks = Check(ReadScenario("s.txt", tail), outcome);
        return Joined(remarks, "\n");
    } catch (const std::exception& failure) {
        return std::string{"failed: "} + failure.what();
    }
}

struct Case
{
    const char* tail;
    const char* said; // what the outcome begins with
};

TEST(Checks, EachHoldsForWhatIsRightAndFailsForWhatIsNot)
{
    constexpr Case kCases[] = {
        {"#> GET offi.asp?Op=A\n#> POST UploadToTransfer.ashx|first second\n#> POST offi.asp|Op=B&P1=\xEF\xBF\xBD", ""},
        {"#> GET offi.asp?Op=A\n#> POST UploadToTransfer.ashx|first second", "failed: request 3: POST offi.asp|Op=B"},
        {"#> ...\n#> POST offi.asp|Op={C,B}", "failed: request 1: POST UploadToTransfer.ashx"},
        {"#> nothing", "failed: request 1: GET offi.asp?Op=A\n  instead of: none"},
        {"#= requests 2 offi.asp", ""},
        {"#= requests 1 offi.asp", "failed: requests with \"offi.asp\": 2\n  instead of: 1"},
        {"#= header Op=A Name: value\n#= header Op=A Name:", ""},
        {"#= header Op=A Name: val", "failed: no header"},
        {"#= header Op=C Name:", "failed: there is no request"},
        {"#= versions 2\n#= version {\"id\": 1}", ""},
        {"#= versions 1", "failed: versions: 2"},
        {"#= version {\"storedAs\": \"1\"}", "failed: 2 versions fit"},
        {"#= version {\"id\": 3}", "failed: 0 versions fit"},
        {"#= uploaded a.pptx", ""},
        {"#= uploaded other.pptx", "failed: the bytes sent are not those of the file"},
        {"#= uploaded gone.pptx", "failed: there is no file gone.pptx"},
        {"#= bound a.pptx 0 0 0 0 0 0 0", ""},
        {"#= bound a.pptx 0 0 1 0 0 0 0", "failed: properties: \n  KRX_SYS_Server lpwstr http://h:1\n"},
        {"#= bound plain.pptx 0 0 0 0 0 0 0", "failed: properties: \n  instead of:"},
        {"#= bound \"a.pptx 0", "failed: a quote stays open"},
        {"#= unbound plain.pptx", ""},
        {"#= unbound a.pptx", "failed: properties: "},
        {"#= unbound broken.pptx", "failed: broken.pptx is no sound zip: it has a broken part p"},
        {"#= unbound customUI.xml", "failed: customUI.xml is no sound zip: there is no zip in it"},
        {"#= ribbon new", ""},
        {"#= ribbon old", "failed: the ribbon is not sound:\nno"},
        {"#= ribbon none", "ribbon none was not checked"},
        {"#= ribbon-texts \"A & B\" 'tip'", ""},
        {"#= ribbon-texts tip \"A & B\"", "failed: texts of the ribbon"},
        {"#= trace one\n#= trace three ${HOST}", ""},
        {"#= trace two \xE2\x82\xAC\n#= trace one", "failed: no line \"one\" in its turn"},
        {"#= trace none", "failed: trace files: 1"},
        {"#= cpu-below 2 Op=A\n#= ribbon none", "the host used 1.00 % of a core\nribbon"},
        {"#= cpu-below 2 Op=B", "the host used 1.00 % of a core, measured for 1.1 of 2.0 s"},
        {"#= cpu-below 0.9 Op=A", "failed: the host used 1.00 % of a core"},
        {"#= cpu-below 9 Upload", "failed: the delay was not measured"},
        {"#= sound", "failed: no check is named sound"},
    };
    for (const auto& [tail, said] : kCases) {
        const auto found = Played(tail);
        EXPECT_TRUE(*said == '\0' ? found.empty() : found.starts_with(said)) << tail << "\n" << found;
    }
}

TEST(Checks, ARepeatedLineStandsForEachOfItsChoices)
{
    const std::vector<std::string> wanted{"1 a 2", "1 a 3", "1 b 2", "1 b 3"};
    EXPECT_EQ(Repeated("1 {a,b} {2,3}"), wanted);
}

TEST(Checks, ATruncatedArchiveIsRefusedAtEachByte)
{
    const auto whole = Zipped("a/name", "what is in it");
    EXPECT_EQ(UnpackZip("z", whole).at("a/name"), "what is in it");
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_THROW((void)UnpackZip("z", std::string_view{whole}.substr(0, size)), Failure) << size;
}

TEST(Checks, WordsAreThoseOfAShell)
{
    const std::vector<std::string> wanted{"a b", "c\"d", "", "e\\f", "g h"};
    EXPECT_EQ(Words(R"(  "a b" c\"d ""  'e\f' "g"' 'h )"), wanted);
    EXPECT_EQ(FromBase64(ToBase64("any carnal pleas")), "any carnal pleas");
}

} // namespace
} // namespace verify
