#include "core/Multipart.h"

#include "CaseName.h"

#include <gtest/gtest.h>

namespace server
{

namespace
{

const std::string kType = "multipart/form-data; boundary=--b";

std::string Body(const std::string& name, const std::string& bytes)
{
    return "----b\r\nContent-Disposition: form-data; name=\"FileField\"; filename=\"" + name +
           "\"\r\nContent-Type: application/upload\r\n\r\n" + bytes + "\r\n----b--\r\n";
}

} // namespace

struct UploadCase
{
    const char* name;
    std::string fileName;
    std::string bytes;
};

class Upload : public testing::TestWithParam<UploadCase>
{};

TEST_P(Upload, GivesBackNameAndBytesUnchanged)
{
    const auto body = Body(GetParam().fileName, GetParam().bytes);
    const auto upload = ParseUpload(kType, body);
    ASSERT_TRUE(upload);
    EXPECT_EQ(upload->name, GetParam().fileName);
    EXPECT_EQ(upload->bytes, GetParam().bytes);
}

INSTANTIATE_TEST_SUITE_P(Multipart, Upload,
                         testing::ValuesIn(std::vector<UploadCase>{
                             {"PlainFile", "plan.pptx", "slides"},
                             {"QuoteInTheName", "the \"plan\".pptx", "slides"},
                             {"NonAsciiName",
                              "Gr\xC3\xB6\xC3\x9F"
                              "e \xE2\x82\xAC.pptx",
                              "slides"},
                             {"EmptyFile", "empty.pptx", ""},
                             {"FileThatHoldsTheBoundary", "odd.pptx", "a\r\n----b--\r\nb"},
                             {"FileOfLineEnds", "lines.txt", "\r\n\r\n\r\n"},
                             {"FileOfZeros", "zeros.bin", std::string(64, '\0')},
                         }),
                         CaseName{});

TEST(Multipart, RefusesWhatIsNotOneWholeFile)
{
    const auto whole = Body("a", "bytes");
    EXPECT_FALSE(ParseUpload("application/x-www-form-urlencoded", whole));
    EXPECT_FALSE(ParseUpload("multipart/form-data", whole));
    EXPECT_FALSE(ParseUpload("multipart/form-data; boundary=other", whole));
    EXPECT_FALSE(ParseUpload(kType, whole.substr(0, whole.size() - 8)));
    EXPECT_FALSE(ParseUpload(kType, "----b\r\nContent-Disposition: form-data; name=\"x\"\r\n\r\nv\r\n----b--\r\n"));
    EXPECT_TRUE(ParseUpload("multipart/form-data; boundary=\"--b\"; charset=x", whole));
}

} // namespace server
