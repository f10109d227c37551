// Announces new names of channels: the configuration page emits the signal after a device has taken a name, and windows
// that show the channel change its name.
pragma Singleton
import QtQuick

QtObject {
    signal renamed(string ipport, int channel, string name)  // `ipport`: "address:port". `channel` counts from 0.
}
