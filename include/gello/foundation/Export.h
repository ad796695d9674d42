#pragma once
// What the library exports: it is built with hidden visibility, so only what its headers mark
// with GELLO_API is reachable from hosts, plug-ins and tools.

#define GELLO_API __attribute__((visibility("default")))
