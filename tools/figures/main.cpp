// tarn-figures: what gnuplot draws of errors and times, and where times differ from others.
//   tarn-figures errors | profile PROFILE | peers TIMES | groups TIMES | group TIMES GROUP | differences HERE PUBLISHED
#include <cstdio>

#include "common/cli.hpp"
#include "figures/differences.hpp"
#include "figures/layout.hpp"
#include "figures/profiles.hpp"

using namespace tarn;

int main(int argc, char** argv) {
    CLI::App app{"Figures of errors and times for plots, and where times differ from others.", "tarn-figures"};
    app.require_subcommand(1);
    std::string file, published, group, measured;
    double part = 0.2;
    std::size_t most = SIZE_MAX;
    const auto add = [&](const char* name, const char* says) { return app.add_subcommand(name, says); };
    auto* errors = add("errors", "errors over OpenCL's bounds, of all families that have one");
    auto* profile = add("profile", "a family's errors over its first argument");
    auto* peers = add("peers", "how far all families are ahead of the best peer");
    auto* groups = add("groups", "the groups of the times, and how files name them");
    auto* of_group = add("group", "the times of a group");
    auto* differ = add("differences", "where times differ from others, worst first");
    for (auto* command : {peers, groups, of_group})
        command->add_option("TIMES", file, "a file of measured times")->required();
    profile->add_option("PROFILE", measured, "a file of tarn-ulp --profile")->required();
    of_group->add_option("GROUP", group, "such as Exponentials")->required();
    differ->add_option("HERE", file, "a file of measured times")->required();
    differ->add_option("PUBLISHED", published, "another")->required();
    differ->add_option("--part", part, "how large a part of a time or ratio is a difference")
        ->check(CLI::PositiveNumber);
    differ->add_option("--most", most, "how many of each are shown");

    return cli::run(app, argc, argv, [&] {
        std::string text;
        const Times times = file.empty() ? Times{} : Times::read(file);
        const auto known = times.groups();
        if (errors->parsed())
            text = errors_figure();
        else if (profile->parsed())
            text = profile_figure(read_profile(measured));
        else if (peers->parsed())
            text = peers_figure(times);
        else if (differ->parsed())
            text = differences(times, Times::read(published), part, most);
        else if (groups->parsed())
            for (const auto& name : known) text += name + '\t' + slug(name) + '\n';
        else if (std::find(known.begin(), known.end(), group) == known.end())
            throw cli::Refused("no times are of a group '" + group + "'");
        else
            text = group_figure(times, group);
        std::fputs(text.c_str(), stdout);
        return 0;
    });
}
