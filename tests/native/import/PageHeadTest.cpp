#include "import/PageHead.h"

#include <gtest/gtest.h>

namespace lindrel {
namespace {

TEST(PageHeadTest, DeclarationsAreFoundHoweverTheyAreWritten) {
    for (const std::string_view head :
         {"<meta charset=utf-8>",
          "<META CHARSET=\"UTF-8\">",
          "<meta charset='utf-8'/>",
          "<meta charset=utf-8/>",
          "<meta/charset=utf-8>",
          "<meta charset = \" Utf-8 \">",
          "<meta\ncharset=utf-8 >",
          "<meta a b='>' charset=utf-8>",
          "<meta charset=utf-8",
          "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=UTF-8\">",
          "<meta content='text/html;charset=utf-8;x' http-equiv=content-type>",
          "<meta http-equiv=Content-Type content=\"text/html; charset = 'utf-8'\">",
          "<meta http-equiv=Content-Type content=\"charset charset=utf-8\">",
          "<meta http-equiv=Content-Type content=text/html; charset=utf-8>",
          "<?xml version=\"1.0\" encoding=\"utf-8\"?>",
          "<?xml encoding = 'UTF-8' ?><html>",
          "<p title=\"<meta charset=latin2>\"><meta charset=utf-8>",
          "a < b <> <3 </> <meta charset=utf-8>",
          "<meta name=charset content=x><meta charset=utf-8>",
          "<!DOCTYPE html><html><head><meta charset=utf-8>",
          "<!--><meta charset=utf-8>",
          "<!-- <meta charset=latin2> -- > --><meta charset=utf-8>",
          "<meta charset=utf-8><meta charset=latin2>",
          "<?xml encoding=\"latin2\"?><meta charset=utf-8>"})
        EXPECT_EQ(DeclaredCharset(head), "utf-8") << head;
}

TEST(PageHeadTest, WhatOnlyLooksLikeADeclarationIsNone) {
    for (const std::string_view head : {"",
                                        "<",
                                        "<meta",
                                        "<meta ",
                                        "charset=utf-8",
                                        "<p charset=utf-8>",
                                        "<meta name=a> charset=utf-8",
                                        "<meta charset",
                                        "<meta charset=",
                                        "<meta charset=>",
                                        "<metacharset=utf-8>",
                                        "<metal charset=utf-8>",
                                        "<meta data-charset=utf-8>",
                                        "<!-- <meta charset=utf-8> -->",
                                        "<!-- <meta charset=utf-8>",
                                        "<!--- <meta charset=utf-8> --->",
                                        "<! <meta charset=utf-8>",
                                        "<a href=\"<meta charset=utf-8>\">",
                                        "<meta name=description content=\"charset=utf-8\">",
                                        "<meta content=\"text/html; charset=utf-8\">",
                                        "<meta http-equiv=refresh content=\"charset=utf-8\">",
                                        "<meta http-equiv=content-type content=charset>",
                                        " <?xml encoding=\"utf-8\"?>",
                                        "<?xml version=\"encoding=utf-8\"?>",
                                        "<!-- <?xml encoding=\"utf-8\"?> -->"})
        EXPECT_EQ(DeclaredCharset(head), "") << head;
}

}  // namespace
}  // namespace lindrel
