#include "core/Multipart.h"

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

TEST(Multipart, GivesBackNameAndBytesUnchanged)
{
    const std::string name = "the \"plan\" \xE2\x82\xAC.pptx", bytes = "a\r\n----b--\r\nb";
    const auto upload = ParseUpload(kType, Body(name, bytes));
    ASSERT_TRUE(upload);
    EXPECT_EQ(upload->name, name);
    EXPECT_EQ(upload->bytes, bytes);
}

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
