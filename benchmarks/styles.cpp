#include <benchmarks/styles.h>

namespace benchmarks {

const std::vector<Style>& styles() {
    static const std::vector<Style> all = {
        {"lvdata", libraryMonitor},
        {"plain", plainMonitor},
#ifdef LVDATA_HAVE_PUGIXML
        {"pugixml", pugixmlMonitor},
#endif
    };
    return all;
}

}  // namespace benchmarks
