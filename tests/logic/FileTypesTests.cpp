#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "filetypes/FileTypes.h"

namespace vantle {
namespace {

using namespace std::string_literals;
using testing::Contains;
using testing::ElementsAre;

/// Returns the row of the table, counted from 0, or -1 if there is none.
std::ptrdiff_t row(const FileType* type) {
    return type ? type - fileTypes.data() : -1;
}

std::string mediaTypeOf(const std::string& start) {
    const FileType* type = fileTypeOf(start);
    return type ? std::string(type->mediaType) : "no capture's";
}

TEST(FileTypes, EachExtensionBelongsToOneType) {
    std::set<std::string_view> all;
    for (const FileType& type : fileTypes)
        for (const auto extension : type.extensions)
            EXPECT_TRUE(all.insert(extension).second) << extension;
}

TEST(FileTypes, SomeTypesAreWrittenOnlyByToolsOfLinux) {
    using enum FileType::Origin;
    EXPECT_THAT((extensionsOf<CaptureKind::image, linuxTools>()), ElementsAre("avif", "webp"));
    EXPECT_THAT((extensionsOf<CaptureKind::video, linuxTools>()), ElementsAre("webm", "mkv"));
}

TEST(FileTypes, EachExtensionFindsItsTypeWithoutRegardToCase) {
    for (const FileType& type : fileTypes)
        for (const auto extension : type.extensions)
            EXPECT_EQ(row(fileTypeNamed(extension)), row(&type)) << extension;
    EXPECT_EQ(row(fileTypeNamed("JpEg")), row(fileTypeNamed("jpg")));
    EXPECT_EQ(fileTypeNamed(""), nullptr);
    EXPECT_EQ(fileTypeNamed("txt"), nullptr);
    EXPECT_EQ(fileTypeNamed("png~"), nullptr);
}

TEST(FileTypes, ExtensionsAreInLowercaseAndWithoutTheDot) {
    for (const FileType& type : fileTypes)
        for (const auto extension : type.extensions)
            EXPECT_TRUE(std::ranges::all_of(extension, [](char character) {
                return lowercase(character) == character && character != '.';
            })) << extension;
}

TEST(FileTypes, EachFormatIsFoundByNameAndByContents) {
    std::set<Format> named;
    std::set<Format> recognized;
    for (const FileType& type : fileTypes) {
        if (type.extensions.size() > 0) named.insert(type.format);
        if (type.signatures.size() > 0) recognized.insert(type.format);
    }
    for (const auto name : formatNames) {
        EXPECT_THAT(named, Contains(*formatNamed(name))) << name;
        EXPECT_THAT(recognized, Contains(*formatNamed(name))) << name;
    }
    EXPECT_EQ(named.size(), formatNames.size());
}

TEST(FileTypes, EachSignatureFindsItsOwnRow) {
    for (const FileType& type : fileTypes)
        for (const auto signature : type.signatures) {
            const std::string start = (type.mayBeginLater ? "x" : "") + std::string(signature);
            EXPECT_EQ(row(fileTypeOf(start)), row(&type)) << signature;
        }
}

TEST(FileTypes, NoTwoTypesAreOfferedUnderOneMediaType) {
    std::set<std::string_view> all;
    for (const FileType& type : fileTypes)
        EXPECT_TRUE(type.mediaType.empty() || all.insert(type.mediaType).second) << type.mediaType;
}

TEST(FileTypes, AFilesTypeIsThatOfItsFirstBytes) {
    const std::map<std::string, std::string> types{
        {"\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR"s, "image/png"},
        {"\xff\xd8\xff\xe0", "image/jpeg"},
        {"GIF87a", "image/gif"},
        {"II*\0\x08\0\0\0"s, "image/tiff"},
        {"RIFF\x10\0\0\0WEBPVP8 "s, "image/webp"},
        {"\0\0\0\x18"s + "ftypheic\0\0\0\0"s, "image/heic"},
        {"\0\0\0\x18"s + "ftypmif1\0\0\0\0"s, "image/heif"},
        {"\0\0\0\x18"s + "ftypavif\0\0\0\0"s, "image/avif"},
        {"%PDF-1.7", "application/pdf"}};
    for (const auto& [start, type] : types) EXPECT_EQ(mediaTypeOf(start), type);
    for (const auto& none : {""s, "text"s, "\x89PNG"s, "RIFF\x10\0\0\0WAVEfmt "s})
        EXPECT_EQ(fileTypeOf(none), nullptr) << none;
}

TEST(FileTypes, BoxesWithoutAnImageAreARecording) {
    for (const auto* start : {"????ftypqt  ", "????ftypisom", "????moov????", "????wide????"})
        EXPECT_EQ(fileTypeOf(start)->format, Format::recording) << start;
    EXPECT_EQ(fileTypeOf("????ftyp"), nullptr);
}

TEST(FileTypes, OnlyAPdfMayBeginLater) {
    const auto behind = [](std::size_t count, const char* start) {
        return fileTypeOf(std::string(count, '\n') + start);
    };
    ASSERT_NE(behind(1, "%PDF-1.4"), nullptr);
    EXPECT_EQ(behind(1, "%PDF-1.4")->format, Format::pdf);
    EXPECT_EQ(behind(1, "%PDF-1.4")->mediaType, "");
    EXPECT_NE(behind(signatureReach - 5, "%PDF-1.4"), nullptr);
    EXPECT_EQ(behind(signatureReach - 4, "%PDF-1.4"), nullptr);
    EXPECT_EQ(behind(1, "GIF89a"), nullptr);
}

}  // namespace
}  // namespace vantle
