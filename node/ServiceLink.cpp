#include "node/ServiceLink.h"

ServiceLink::~ServiceLink() = default;
