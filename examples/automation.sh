#!/bin/sh
# Operates a running simulator from the shell:
#     brinewright-headless --setup examples/sensor.ini --no-save --virtual --automation /tmp/b.sock &
#     examples/automation.sh /tmp/b.sock
# BRINEWRIGHT_CTL names the client when it is not on the PATH.
set -eu

socket=$1
ctl() { "${BRINEWRIGHT_CTL:-brinewright-ctl}" --socket "$socket" "$@"; }

ctl click 'frmMain.mnuMode(2)' # Sensor mode, if it is not yet
ctl get 'frmPosition[1].Caption' 2>/dev/null || ctl click 'frmMain.mnuOpenForm(1)'

# It may move already; a start position is set at rest.
[ "$(ctl get 'frmPosition[1].txtLat.Enabled')" = true ] || ctl click 'frmPosition[1].cmdPause'
ctl set 'frmPosition[1].chkGGA' true
ctl set 'frmPosition[1].cmbGGAInterval' '0.5 sec'
ctl set 'frmPosition[1].txtLat' '54 10.500 N'
ctl set --text 'frmPosition[1].txtSOG' 12.0 # --text: typed as it stands here
ctl click 'frmPosition[1].cmdStart'

if [ "$(ctl --json stats | grep -c '"virtual":true')" = 1 ]; then
    ctl advance 3
else
    ctl watch 'frmPosition[1].lblLat' --count 2 # the position moves once a second
fi

echo "latitude $(ctl get 'state.GNSS_Lat[1]')"
ctl stats | grep '^sent' || echo 'nothing sent: no link is in use'

ctl boxes | while read -r id rest; do
    echo "box $id: $rest"
    ctl answer "$id"
done

if ctl set 'frmPosition[1].cmbGGAInterval' 99; then exit 1; fi # says on stderr why it is refused
