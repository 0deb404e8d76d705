#pragma once

#import <CoreWLAN/CWInterface.h>
#import <CoreWLAN/CWWiFiClient.h>
