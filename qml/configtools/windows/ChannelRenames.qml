// The new names of channels, from the configuration page that has written them to the windows that show the channels.
pragma Singleton
import QtQuick

QtObject {
    /// `channel` counts from 0.
    signal renamed(string ipport, int channel, string name)
}
