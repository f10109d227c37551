#include "device/dh/configuration/sessionstate.h"

void SessionState::begin(const ConfigSession &newSession, const QString &newIpport, int channelCount)
{
    session = newSession;
    ipport = newIpport;
    channels = {};
    channels.channelCount = channelCount;
    names.begin(session);
    encode.begin(session);
    camera.begin(session);
}
