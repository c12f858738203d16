<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>Le moteur Godot est un logiciel libre sous licence MIT (godotengine.org). Il est téléchargé depuis les publications officielles de godotengine/godot et vérifié à l’aide de la somme de contrôle SHA-512 publiée.</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>Rien n’est transmis en dehors des deux téléchargements (le jeu depuis GitHub et le moteur depuis les publications GitHub).</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>La liste des sommes de contrôle du moteur dépasse %1&#xa0;Mio&#xa0;; elle n’a donc pas été lue.</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>Impossible de lire la liste des sommes de contrôle du moteur (HTTP&#xa0;%1).</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>La liste des sommes de contrôle ne contient aucune entrée pour %1.</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>Le moteur téléchargé ne correspond pas à sa somme de contrôle officielle&#xa0;; il a donc été supprimé.</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>Le moteur a été décompressé, mais son programme est introuvable.</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>L’adresse du moteur n’est pas valide.</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>Le serveur a répondu HTTP&#xa0;%1 pour %2.</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>La partie «&#xa0;%1&#xa0;» du lanceur ne peut pas être chargée. Fermez le lanceur et relancez-le, ou réinstallez-le.</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>Le jeu téléchargé ne contient pas de fichier project.godot.</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>Le dossier du jeu a été décompressé, mais project.godot est introuvable.</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>L’adresse du jeu n’est pas valide.</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>La décompression a échoué (code de sortie&#xa0;%1).</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>Le moteur Godot&#xa0;3 n’est pas disponible pour le processeur de cet ordinateur (%1).</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>Action requise</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>Non téléchargé</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>Téléchargement</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>Préparation</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>Démarrage…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Partie en cours</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>Le jeu et le moteur Godot sont téléchargés une seule fois&#xa0;: environ %1&#xa0;Mo pour le moteur, plus les fichiers du jeu. Vous n’avez rien à saisir.</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>Tout est installé. Cliquez sur «&#xa0;Jouer&#xa0;».</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>Le jeu a été lancé. Attente de %n&#xa0;seconde pour s’assurer qu’il reste ouvert.</numerusform>
            <numerusform>Le jeu a été lancé. Attente de %n&#xa0;secondes pour s’assurer qu’il reste ouvert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>Le jeu s’exécute dans sa propre fenêtre.</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>Le jeu est encore ouvert depuis un lancement précédent. Fermez-le d’abord.</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» se trouve sur un autre disque qu’auparavant. Reconnectez le disque précédent, ou réessayez pour utiliser le disque actuel.</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>Ce qui s’est passé&#xa0;: %1

Dernières lignes du journal&#xa0;:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>Étape&#xa0;4 sur&#xa0;4 · Jeu</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>Mettre à jour le jeu&#x202f;?</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>Le jeu sera de nouveau téléchargé depuis GitHub. Vos sauvegardes seront conservées.</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>Tout réinstaller&#x202f;?</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>Le jeu et le moteur seront supprimés, puis téléchargés de nouveau. Vos sauvegardes seront conservées.</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Réinstaller</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Le jeu et le moteur téléchargés seront supprimés, ce qui libérera l’espace de tous les fichiers téléchargés. Vos sauvegardes dans le dossier de Godot ne seront pas modifiées.</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Le jeu et le moteur téléchargés seront supprimés, ce qui libérera %1. Vos sauvegardes dans le dossier de Godot ne seront pas modifiées.</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>Tout supprimer&#x202f;?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>Impossible de supprimer les fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>Quitter et fermer le jeu&#x202f;?</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>Le jeu est encore ouvert. Il sera fermé si vous quittez.</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>Étape&#xa0;1 sur&#xa0;4 · Téléchargement du jeu</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>Le dossier téléchargé ne contient pas de fichier project.godot lisible.</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>Ce jeu est conçu pour Godot&#xa0;4, mais cette application ne sait installer que Godot&#xa0;3.</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>Étape&#xa0;2 sur&#xa0;4 · Téléchargement du moteur Godot (%1)</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>Le moteur Godot est introuvable.</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>Étape&#xa0;3 sur&#xa0;4 · Préparation initiale, cela peut durer une minute ou plus</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>La préparation initiale n’a pas abouti&#xa0;: %n&#xa0;ressource du jeu n’a pas été importée (code de sortie du moteur&#xa0;: %1).</numerusform>
            <numerusform>La préparation initiale n’a pas abouti&#xa0;: %n&#xa0;ressources du jeu n’ont pas été importées (code de sortie du moteur&#xa0;: %1).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>%1 est déjà ouvert, mais ne répond pas. Fermez-le d’abord.</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>%1 est déjà ouvert. En attente de sa réponse…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>Paramètres…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>Commandes</translation>
    </message>
</context>
<context>
    <name>DownloadProgress</name>
    <message>
        <source>%1/s</source>
        <extracomment>The rate of a download: %1 is an amount, such as &quot;3 MB&quot;.</extracomment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>What has been downloaded, and the rate: &quot;20.1 MB · 3 MB/s&quot;.</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 of %2 · %3</source>
        <extracomment>What of how much has been downloaded, and the rate: &quot;20.1 MB of 70.1 MB · 3 MB/s&quot;.</extracomment>
        <translation>%1 sur %2 · %3</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>Failure report</source>
        <extracomment>What a screen reader calls the box with the text of a failure.</extracomment>
        <translation>Rapport d’échec</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>Une aventure 2D au grappin</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>Se déplacer</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D, ou le stick gauche</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Sauter</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>Espace ou W, ou le bouton A de la manette</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>Grappin</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>Bouton gauche de la souris, ou un bouton de tranche</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Viser</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>Maintenir F, ou utiliser le stick droit</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>Recommencer</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>Le fichier README ne contient pas de liste des commandes (voir README)&#xa0;; celles-ci proviennent des paramètres d’entrée du jeu.</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>Le jeu «&#xa0;Snaglet!&#xa0;» a été créé en 2019 par Quennet et l’équipe Brindlework, et il est publié sous la licence MIT. Le jeu appartient à son auteur&#xa0;; cette application n’est qu’un lanceur qui le télécharge.</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>Basé sur brindlework-demos/tetherwalk, licence MIT.</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>Copier le journal</translation>
    </message>
    <message>
        <source>Log</source>
        <extracomment>What a screen reader calls the box with the lines of the log.</extracomment>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>PlatformError</name>
    <message>
        <source>The download of “%1” is %2 larger than what is free in “%3”. Make room there and try again.</source>
        <translation>Il manque %2 d’espace libre dans «&#xa0;%3&#xa0;» pour télécharger «&#xa0;%1&#xa0;». Libérez-y de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>Le téléchargement de «&#xa0;%1&#xa0;» occupe tout l’espace libre dans «&#xa0;%2&#xa0;», à une réserve près. Libérez-y de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>Impossible d’enregistrer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>Le téléchargement de «&#xa0;%1&#xa0;» a été redirigé vers «&#xa0;%2&#xa0;», qui n’est pas un serveur sécurisé de GitHub&#xa0;; il a donc été interrompu.</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>La bibliothèque réseau est inutilisable.</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>Le téléchargement de «&#xa0;%1&#xa0;» a été redirigé trop de fois, la dernière vers «&#xa0;%2&#xa0;». Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>Le certificat de «&#xa0;%1&#xa0;» n’est pas encore valide. Vérifiez la date et l’heure de cet ordinateur.</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>Le certificat de «&#xa0;%1&#xa0;» a expiré. Vérifiez la date et l’heure de cet ordinateur.</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>Le certificat de «&#xa0;%1&#xa0;» appartient à un autre serveur. Un autre réseau peut résoudre le problème.</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>Le certificat de «&#xa0;%1&#xa0;» n’est pas digne de confiance. Un autre réseau peut résoudre le problème.</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>Le serveur mandataire «&#xa0;%1&#xa0;» est introuvable. Vérifiez les paramètres du serveur mandataire.</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>Le serveur mandataire «&#xa0;%1&#xa0;» a refusé la connexion (HTTP&#xa0;%2). Vérifiez les paramètres du serveur mandataire.</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>Le serveur mandataire «&#xa0;%1&#xa0;» est inutilisable. Vérifiez les paramètres du serveur mandataire.</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>Le serveur «&#xa0;%1&#xa0;» est introuvable. Vérifiez la connexion à Internet.</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>Le serveur «&#xa0;%1&#xa0;» est injoignable. Vérifiez la connexion à Internet.</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>Impossible de lire les certificats auxquels ce système fait confiance. Installez le paquet qui les fournit.</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>Impossible d’établir une connexion sécurisée avec «&#xa0;%1&#xa0;». Un autre réseau peut résoudre le problème.</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>La connexion à «&#xa0;%1&#xa0;» a été perdue. Vérifiez la connexion à Internet et réessayez.</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>La mémoire est insuffisante. Fermez d’autres programmes et réessayez.</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>«&#xa0;%1&#xa0;» a envoyé une réponse incompréhensible. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>Le transfert depuis «&#xa0;%1&#xa0;» a échoué. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>Impossible de télécharger «&#xa0;%1&#xa0;»</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>Le téléchargement de «&#xa0;%1&#xa0;» est bloqué&#xa0;: le serveur mandataire «&#xa0;%2&#xa0;» n’a pas répondu en %n&#xa0;seconde. Vérifiez les paramètres du serveur mandataire et réessayez.</numerusform>
            <numerusform>Le téléchargement de «&#xa0;%1&#xa0;» est bloqué&#xa0;: le serveur mandataire «&#xa0;%2&#xa0;» n’a pas répondu en %n&#xa0;secondes. Vérifiez les paramètres du serveur mandataire et réessayez.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>Le téléchargement de «&#xa0;%1&#xa0;» est bloqué&#xa0;: %2 n’a rien envoyé pendant %n&#xa0;seconde. Vérifiez la connexion à Internet et réessayez.</numerusform>
            <numerusform>Le téléchargement de «&#xa0;%1&#xa0;» est bloqué&#xa0;: %2 n’a rien envoyé pendant %n&#xa0;secondes. Vérifiez la connexion à Internet et réessayez.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>Le téléchargement de «&#xa0;%1&#xa0;» est bloqué&#xa0;: %2 n’a pas répondu en %n&#xa0;seconde. Vérifiez la connexion à Internet et réessayez.</numerusform>
            <numerusform>Le téléchargement de «&#xa0;%1&#xa0;» est bloqué&#xa0;: %2 n’a pas répondu en %n&#xa0;secondes. Vérifiez la connexion à Internet et réessayez.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>Impossible de calculer une somme de contrôle SHA-512.</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>Impossible de créer le dossier temporaire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>Impossible de lire l’entrée d’archive «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>Impossible de lire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>Impossible d’ouvrir le dossier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>Impossible de créer le lien «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>Impossible de modifier «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>Impossible de remplacer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>Impossible de trouver votre dossier personnel&#xa0;: HOME n’est pas défini.</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>Impossible d’utiliser le dossier «&#xa0;%1&#xa0;», car son nom n’est pas codé en UTF-8.</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>Impossible de démarrer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>Impossible de créer un tube</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>Impossible de démarrer un fil d’exécution</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>Le disque est plein. Libérez-y de l’espace et réessayez.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>Makes a sentence of a reason in the system&apos;s own words, such as &quot;Permission denied&quot;.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What failed, such as &quot;Could not open “the file”&quot;, and the sentence that says why.</extracomment>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Could not exchange “%1” and “%2”</source>
        <translation>Impossible d’échanger «&#xa0;%1&#xa0;» et «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>Impossible de déplacer «&#xa0;%1&#xa0;» vers «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>Impossible de déplacer «&#xa0;%1&#xa0;» vers «&#xa0;%2&#xa0;». Ce qui s’y trouvait auparavant est désormais à l’emplacement «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>Impossible de supprimer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>Impossible d’ouvrir «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>Le lanceur est ouvert deux fois. Fermez d’abord l’autre.</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>Impossible de verrouiller «&#xa0;%1&#xa0;», sans quoi rien n’est installé ni supprimé</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>Impossible de créer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>Impossible d’écrire «&#xa0;%1&#xa0;» sur le disque</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>un autre système de fichiers y est monté</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>l’élément a été déplacé entre-temps</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>Le jeu s’est fermé au bout de %n&#xa0;seconde (code de sortie&#xa0;%1)&#xa0;; il n’a donc pas démarré correctement.</numerusform>
            <numerusform>Le jeu s’est fermé au bout de %n&#xa0;secondes (code de sortie&#xa0;%1)&#xa0;; il n’a donc pas démarré correctement.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>Le jeu s’est arrêté de façon inattendue (code de sortie&#xa0;%1).</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>Jouer</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Afficher le journal</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>État&#xa0;: %1 – %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>Valeur par défaut</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>Mettre à jour le jeu</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Réinstaller</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>Afficher les sauvegardes</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>Afficher dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>S’appliquera la prochaine fois que vous cliquerez sur «&#xa0;Jouer&#xa0;».</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>La mise à jour télécharge de nouveau le jeu. Les sauvegardes sont conservées&#xa0;; elles se trouvent dans le dossier propre à Godot.</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>Aucune sauvegarde pour l’instant (le dossier utilisateur de Godot n’existe pas).</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>Fenêtré</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>Tout supprimer</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>Tout supprimer (libère %1)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>Le jeu est en cours d’installation.</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>Le jeu est prêt et démarre.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>%1 KB</source>
        <extracomment>Kilobytes: 1000 bytes, as the desktop&apos;s file manager writes it.</extracomment>
        <translation>%1&#xa0;ko</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;Go</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;To</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;Po</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0&#xa0;ko</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1&#xa0;octet</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n&#xa0;octet</numerusform>
            <numerusform>%n&#xa0;octets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Impossible d’ouvrir le dossier.</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>Ce bureau n’a pas de gestionnaire de fichiers. Le dossier est «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
