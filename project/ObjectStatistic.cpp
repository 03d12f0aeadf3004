#include "project/ObjectStatistic.h"

ObjectStatistic::ObjectStatistic() = default;

ObjectStatistic::~ObjectStatistic() = default;
