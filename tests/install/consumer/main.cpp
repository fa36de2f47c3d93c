#include <lvdata/lvdata.h>

#include <cstdio>
#include <string>

// What the installed library must do for a stranger: take a document in, give a member, put the document out again.
int main() {
    const std::string document = R"(<CorrelationInfo Version="1" MinorVersion="0">)"
                                 "<ReferenceSensorID>0012</ReferenceSensorID></CorrelationInfo>";
    lv::CorrelationInfo info;
    if (!info.parseXMLString(document)) {
        std::puts("the document was refused");
        return 1;
    }
    const std::string printed = info.toXMLString(false, false);
    std::printf("lvdata %s: %s\n", lv::versionText, printed.c_str());
    return info.referenceSensorID.value == "0012" && printed == document ? 0 : 1;
}
