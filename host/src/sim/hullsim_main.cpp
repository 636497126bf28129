#include "hullsim_main.h"

#include <algorithm>
#include <exception>

#include "core/printable_text.h"
#include "options.h"
#include "run.h"
#include "usage_error.h"

namespace hullhost::sim {

namespace {

void ReportError(std::ostream &err, std::string message) {
    std::replace(message.begin(), message.end(), '\n', ' ');
    err << "hullsim: " << PrintableText(message) << std::endl;
}

} // namespace

int HullsimMain(const std::vector<std::string> &args, const std::string &defaultRoot, std::ostream &out,
                std::ostream &err) {
    try {
        Command cmd = ParseCommandLine(args, defaultRoot);
        if (cmd.help) {
            out << cmd.helpText;
            return kExitOk;
        }
        RunScenario(cmd.run);
        return kExitOk;
    } catch (const UsageError &e) {
        ReportError(err, e.what());
        return kExitUsageError;
    } catch (const std::exception &e) {
        ReportError(err, e.what());
        return kExitRunError;
    } catch (...) {
        ReportError(err, "a vessel module threw an unknown exception");
        return kExitRunError;
    }
}

} // namespace hullhost::sim
