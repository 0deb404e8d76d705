#pragma once

#import <ServiceManagement/SMAppService.h>
