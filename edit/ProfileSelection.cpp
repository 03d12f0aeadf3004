#include "edit/ProfileSelection.h"

namespace {

template <typename Map>
typename Map::mapped_type* find(Map& map, const typename Map::key_type& key)
{
    const auto found = map.find(key);
    return found != map.end() ? &found->second : nullptr;
}

} // namespace

ProfileUserFid* ProfileSelection::fidOf(ArincProfile& profile) const
{
    return find(profile.userFids, fid);
}

ProfileUserUnit* ProfileSelection::unitOf(ArincProfile& profile) const
{
    return find(profile.userUnits, unit);
}

ProfileEnum* ProfileSelection::enumerationOf(ArincProfile& profile) const
{
    return find(profile.enums, enumeration);
}

ProfileEnumValue* ProfileSelection::valueOf(ArincProfile& profile) const
{
    ProfileEnum* selected = enumerationOf(profile);
    return selected != nullptr ? find(selected->values, value) : nullptr;
}

ProfileFidGroup* ProfileSelection::chapterOf(ArincProfile& profile) const
{
    return find(profile.fids, chapter);
}

ProfileParameter* ProfileSelection::parameterOf(ArincProfile& profile) const
{
    ProfileFidGroup* selected = chapterOf(profile);
    return selected != nullptr ? find(selected->parameters, parameter) : nullptr;
}
