import QtQuick
import QtWebEngine
import Halvorin.Player

/*! A film in the service's own player: a page of the web that may play, and nothing else. What it
    has stored is forgotten with it. */
FocusScope {
    id: root

    required property string videoID
    required property url address
    /*! Sent with the request for the page, by their names. */
    required property var headers
    /*! Milliseconds of silence after which the page won't come. */
    required property int timeout
    /*! Gives the excuse that the page shows in place of a film, if any. */
    required property string probeScript
    property alias probeDelay: session.probeDelay
    /*! How much the tree is magnified in which this stands. The page is laid out at the size that it
        has on the screen, so that it stays sharp. */
    property real magnification: 1
    readonly property alias failed: session.failed

    /*! An address is for the user's browser. */
    signal leaving(address: url)

    Component.onCompleted: session.show(root.videoID, root.address)
    Component.onDestruction: view.stop()

    PlayerSession {
        id: session
        timeout: root.timeout
        onLoadRequested: address => view.url = address
        onProbeRequested: videoID => view.runJavaScript(root.probeScript, result => session.probed(videoID, result))
        onLeaving: address => root.leaving(address)
    }
    WebEngineProfile {
        id: forgetful
        offTheRecord: true
        persistentCookiesPolicy: WebEngineProfile.NoPersistentCookies
        onDownloadRequested: download => download.cancel()
    }
    FilmRequest {
        profile: forgetful
        address: root.address
        headers: root.headers
    }
    FullScreen {
        id: screen
        item: view
        onRefused: view.fullScreenCancelled()
    }
    Shortcut {
        sequence: "Escape"
        enabled: screen.active
        onActivated: view.fullScreenCancelled()
    }
    WebEngineView {
        id: view

        width: screen.active ? screen.size.width : root.width * root.magnification
        height: screen.active ? screen.size.height : root.height * root.magnification
        scale: screen.active ? 1 : 1 / root.magnification
        transformOrigin: Item.TopLeft
        zoomFactor: root.magnification
        focus: true
        activeFocusOnTab: true
        Accessible.role: Accessible.WebDocument
        Accessible.name: qsTr("Player")
        profile: forgetful
        backgroundColor: "transparent"

        settings.playbackRequiresUserGesture: true
        settings.fullScreenSupportEnabled: true
        settings.errorPageEnabled: false
        // The list keeps the keyboard while a page comes.
        settings.focusOnNavigationEnabled: false
        settings.allowWindowActivationFromJavaScript: false
        // Other schemes would start other programs.
        settings.unknownUrlSchemePolicy: WebEngineSettings.DisallowUnknownUrlSchemes
        settings.navigateOnDropEnabled: false
        settings.autoLoadIconsForPage: false
        settings.hyperlinkAuditingEnabled: false
        settings.pdfViewerEnabled: false
        settings.webRTCPublicInterfacesOnly: true

        onLoadProgressChanged: session.progressed()
        onLoadingChanged: info => {
            if (info.status === WebEngineView.LoadSucceededStatus)
                session.loadingFinished();
            else if (info.status === WebEngineView.LoadFailedStatus)
                session.loadingFailed();
        }
        onRenderProcessTerminated: session.processEnded()
        onNavigationRequested: request => {
            const isLink = request.navigationType === WebEngineNavigationRequest.LinkClickedNavigation;
            if (!session.allowsNavigation(request.url, isLink, request.isMainFrame))
                request.reject();
        }
        onNewWindowRequested: request => session.windowRequested(request.requestedUrl)
        onFullScreenRequested: request => {
            request.accept();
            screen.active = request.toggleOn;
        }

        // Nothing that a page asks for is granted.
        onFeaturePermissionRequested: (origin, feature) => view.grantFeaturePermission(origin, feature, false)
        onFileSystemAccessRequested: request => request.reject()
        onQuotaRequested: request => request.reject()
        onRegisterProtocolHandlerRequested: request => request.reject()
        onSelectClientCertificate: selection => selection.selectNone()
        onFileDialogRequested: request => {
            request.accepted = true;
            request.dialogReject();
        }
        onColorDialogRequested: request => {
            request.accepted = true;
            request.dialogReject();
        }
        onJavaScriptDialogRequested: request => {
            request.accepted = true;
            request.dialogReject();
        }
        onAuthenticationDialogRequested: request => {
            request.accepted = true;
            request.dialogReject();
        }
        // The engine's own menus and bubbles are drawn in another style and lead to other places.
        onContextMenuRequested: request => request.accepted = true
        onTooltipRequested: request => request.accepted = true
        onTouchSelectionMenuRequested: request => request.accepted = true
    }
}
