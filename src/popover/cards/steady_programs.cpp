#include "popover/cards/steady_programs.h"

#include <algorithm>

namespace vantrix {
namespace {

bool isSame(const ProgramShare& a, const ProgramShare& b) {
    return a.name == b.name && a.icon == b.icon;
}

} // namespace

std::vector<ProgramShare> SteadyPrograms::arranged(const std::vector<ProgramShare>& latest) {
    std::vector<Place> places(std::max(places_.size(), latest.size()));
    std::vector<ProgramShare> newcomers;
    for (const ProgramShare& program : latest) {
        const auto known = std::find_if(places_.begin(), places_.end(),
                                        [&](const Place& place) { return isSame(place.program, program); });
        if (known == places_.end())
            newcomers.push_back(program);
        else
            places[static_cast<std::size_t>(known - places_.begin())] = {program, rank_(known->program)};
    }
    const auto isFree = [](const Place& place) { return place.program.processes == 0; };
    for (auto free = places.begin(); const ProgramShare& newcomer : newcomers) {
        free = std::find_if(free, places.end(), isFree);
        *free = {newcomer, 0.0};
    }
    std::erase_if(places, isFree);
    const auto belongsAbove = [&](const Place& a, const Place& b) {
        return rank_(a.program) > rank_(b.program) && a.before > b.before;
    };
    for (std::size_t done = 0; done < places.size(); ++done)
        for (std::size_t i = 1; i < places.size(); ++i)
            if (belongsAbove(places[i], places[i - 1]))
                std::swap(places[i], places[i - 1]);
    places_ = std::move(places);
    std::vector<ProgramShare> programs;
    for (const Place& place : places_)
        programs.push_back(place.program);
    return programs;
}

} // namespace vantrix
