#include <tests/differential/odd_texts.h>

namespace differential {
namespace {

using Texts = std::vector<std::string>;

Texts concatenated(const std::vector<Texts>& groups) {
    Texts all;
    for (const Texts& group : groups) {
        all.insert(all.end(), group.begin(), group.end());
    }
    return all;
}

Texts loneSigns() {
    return {"", " ", "-", "+", "+-5", "--5", "-+5"};
}

Texts numbersOfEveryLength() {
    return {"0",       "-0",       "007",       "-1",        "+1",        "1",          "12",
            "1234567", "12345678", "123456789", "-12345678", "999999999", "1000000000", "0000000012345678"};
}

Texts numbersAroundTheLimits() {
    return {"2147483647",
            "2147483648",
            "4294967295",
            "4294967296",
            "9999999999",
            "18446744073709551616",
            "-2147483648",
            "-2147483649",
            "-4294967295",
            "-4294967296",
            "99999999999999999999999999999999999999",
            "00000000000000000000000000000000000042",
            "-99999999999999999999999999999999"};
}

Texts numbersWithBlanks() {
    return {" 7", "7 ", "7 8", "\t9", "\n9", "\v9", "  -3"};
}

Texts numbersWithOtherText() {
    return {"abc",  "x1",  "1x",   "1234567x", "12345678x", "123456789x", "12345678 9",
            "1.5",  "1e3", "0x10", "1,234",    "true",      "TRUE",       "false",
            "True", "/5",  ":5",   "5/",       "5:",        "1234/678",   "1234:678"};
}

Texts numbersWithOddBytes() {
    return {"\xB5"
            "5",
            "5\xB5",
            "1234\xB1"
            "678",
            "\xFF\xFF\xFF\xFF",
            "&#49;2",
            "1&#x32;",
            "1\r2"};
}

Texts references() {
    return {"&amp;", "&lt;", "&gt;", "&quot;", "&#49;", "&#x32;", "&bogus;", "&", "&#0;", "&#"};
}

Texts charactersInTexts() {
    return {"\r", "\n", "\r\n", "\n\r", "|", "||", " ",   "\t",       "-",
            "+",  "7",  ">",    "\"",   "'", "/",  "]]>", "\xC2\xB5", "\v"};
}

Texts markupInTexts() {
    return {"<!-- 1 -->",      "<!-- 1|2 </A> -->",   "<Unknown/>", "<A>1|2</A>", "<?other 1?>", "<![CDATA[]]>",
            "<![CDATA[5|6]]>", "<![CDATA[ & < > ]]>", "<",          "</A>",       "<!-- ",       "-->",
            "<![CDATA["};
}

}  // namespace

const std::vector<std::string>& oddNumbers() {
    static const std::vector<std::string> all =
        concatenated({loneSigns(), numbersOfEveryLength(), numbersAroundTheLimits(), numbersWithBlanks(),
                      numbersWithOtherText(), numbersWithOddBytes()});
    return all;
}

const std::vector<std::string>& oddInTexts() {
    static const std::vector<std::string> all = concatenated({references(), charactersInTexts(), markupInTexts()});
    return all;
}

const std::vector<std::string>& entities() {
    static const std::vector<std::string> all = {"&amp;", "&lt;", "&gt;", "&quot;", "&#38;"};
    return all;
}

const std::vector<std::string>& blanks() {
    static const std::vector<std::string> all = {" ", "   ", "\t", "\n", "\r", "\r\n", "\v", "&#32;"};
    return all;
}

const std::vector<std::string>& oddInTags() {
    static const std::vector<std::string> all = {" A=\"x>y\"",
                                                 " A='x>y'",
                                                 " A='1\"2'",
                                                 " A='>\"<'",
                                                 " A=\"it's\"",
                                                 " A=\"'>'\"",
                                                 " A=\"/\"",
                                                 " A='/'",
                                                 " A=\"/>\"",
                                                 " A=\"</A>\"",
                                                 " A=\"&quot;>\"",
                                                 " A='>1|2</'",
                                                 " A=\"1\"",
                                                 " A = \"1\" ",
                                                 " A=\"1\" B='2'",
                                                 " A=\"1\"B=\"2\"",
                                                 " A",
                                                 " A=1",
                                                 " ",
                                                 "\n",
                                                 "\r\n",
                                                 "\t",
                                                 "/",
                                                 " /",
                                                 "/ ",
                                                 "\v",
                                                 " A=\"\"",
                                                 " A='\r\n'",
                                                 " Type=\"Value\"",
                                                 " Type='Off'",
                                                 " Version=\"-1\"",
                                                 " Version=\"\"",
                                                 " MinorVersion=\" +7x\"",
                                                 " Version=\"&#49;\"",
                                                 " Color='Red'",
                                                 " x=\"<\""};
    return all;
}

const std::vector<std::string>& oddInFront() {
    static const std::vector<std::string> all = {"<?xml version=\"1.0\"?>",
                                                 "<?xml version='1.0' encoding='UTF-8'?>\r\n",
                                                 "<?xml a=\"?>\"?>",
                                                 "<?xml ?>",
                                                 "<?xml?>",
                                                 "<?xml \n?>  ",
                                                 "<?xml version=\"1.0\"?><!-- c -->",
                                                 "<?other?>",
                                                 "<!-- c -->",
                                                 "<!-- <A>1</A> -->",
                                                 "<!DOCTYPE x>",
                                                 "\xEF\xBB\xBF",
                                                 "\xEF\xBB\xBF<?xml version=\"1.0\"?>",
                                                 "\xEF\xBB",
                                                 " ",
                                                 "\n\t",
                                                 "\v",
                                                 "x",
                                                 "<A/>",
                                                 "<",
                                                 "<?xml version=\"1.0\"?><?xml version=\"1.0\"?>",
                                                 "<![CDATA[1]]>"};
    return all;
}

}  // namespace differential
