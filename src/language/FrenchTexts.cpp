// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/ProgramTextColumn.h"

namespace kestrova {

namespace {

using enum ProgramText;

constexpr ProgramTextRow kRows[] = {
    {DiaryBusy, "L’agenda est en cours d’utilisation"},
    {YearPrompt, "Année ?"},
    {DayFull, "Ce jour contient déjà dix événements. Supprimez-en un avant d’en ajouter un autre."},
    {SaveEdit, "L’événement en cours de modification n’a pas été enregistré."},
    {KeepEdit, "Enregistrer"},
    {GoOnEditing, "Continuer la modification"},
    {ClockBehind,
     "L’horloge de l’ordinateur indique l’année %1, antérieure à celle de votre agenda.\n\nSi "
     "l’horloge est mal réglée, gardez l’année de l’agenda et remettez l’horloge à l’heure : d’ici "
     "là, aucun rappel n’est donné. Si l’horloge est à l’heure, l’agenda peut la suivre ; une "
     "copie de l’agenda dans son état actuel est conservée."},
    {GoByTheClock, "Suivre l’horloge"},
    {KeepTheYear, "Garder l’année de l’agenda"},
    {Retry, "Réessayer"},
    {CloseProgram, "Fermer Kestrova"},
    {DiaryOutOfReach, "Le dossier de cet agenda est inaccessible. Rien n’a encore été enregistré."},

    {MenuFile, "&Fichier"},
    {MenuMonth, "&Mois"},
    {MenuWeekStart, "&Début de semaine"},
    {MenuLanguage, "&Langue"},
    {MenuThisMonth, "Mois en cours"},
    {MenuPreviousMonth, "Mois précédent"},
    {MenuNextMonth, "Mois suivant"},
    {MenuYear, "Année..."},
    {MenuFullScreen, "&Plein écran"},
    {MenuRepeatMode, "&Répéter la vidéo"},
    {MenuSettings, "P&aramètres..."},
    {MenuManual, "&Manuel"},
    {MenuAbout, "À &propos"},
    {MenuExit, "&Quitter"},
    {MenuDelete, "&Supprimer l’événement"},
    {MenuDeleteAll, "Supprimer &tous les identiques"},
    {MenuUndo, "&Annuler la suppression"},
    {MenuNewEvent, "&Nouvel événement"},
    {MenuAddNetUser, "A&jouter un utilisateur réseau..."},
    {MenuRemoveNetUser, "&Retirer l’utilisateur réseau"},
    {MenuCloseDay, "&Fermer"},
    {AboutText, "Calendrier illustré et agenda personnel.\n\nLogiciel libre sous licence publique "
                "générale GNU, version 3 ou ultérieure."},
    {NoHelp, "La page d’aide est introuvable : %1"},

    {PreviousYear, "Année précédente"},
    {NextYear, "Année suivante"},
    {EventHour, "Heures"},
    {EventMinute, "Minutes"},
    {HideFromMonth, "Masquer dans le calendrier"},
    {PictureOfMonth, "Image du mois"},
    {MediaFilter,
     "Fichiers multimédias "
     "(*.mpg;*.avi;*.mov;*.wav;*.mp2;*.mp3)|*.mpg;*.mpeg;*.avi;*.mov;*.wav;*.mp2;*.mp3"},
    {WaveFilter, "*.wav|*.wav"},
    {ReminderService, "Service de rappels de Kestrova."},
    {SpokenAt, "À."},

    {MyDiary, "Mon agenda"},
    {AddNetUser, "Ajouter un utilisateur"},
    {InputUserName, "Saisissez le nom de l’utilisateur"},
    {NetUserRemoved, "L’utilisateur réseau %1 a été retiré"},
    {NoDiaryThere, "Ce n’est pas un agenda. Choisissez le fichier Data.dat dans le dossier "
                   "DiaryDat du dossier de programme de l’autre utilisateur."},
    {NameTaken, "Il existe déjà un agenda nommé %1."},
    {MyDiaryStays, "« Mon agenda » ne peut pas être retiré."},
    {DiaryShown, "Agenda affiché"},

    {TalkToMe, "Lire à voix haute"},
    {SpeechNotInstalled, "Synthèse vocale non installée"},
    {NoteIsNoText,
     "Cette note contient des octets qui ne sont pas du texte. Elle reste telle quelle."},
    {NoteTooLarge, "Cette note est trop longue pour être modifiée ici. Elle reste telle quelle."},
    {NoteWithoutEvent, "L’événement de cette note n’est plus dans l’agenda. Le texte reste dans la "
                       "fenêtre ; copiez-le avant de la fermer."},
    {DiscardNote, "Le nouvel événement a une note. L’abandonner avec l’événement ?"},
    {Discard, "Abandonner"},
    {HasNote, "Avec une note"},

    {SettingsTitle, "Paramètres"},
    {TestModem, "Tester le modem"},
    {ModemFound, "Modem trouvé : %1"},
    {SpeechSample, "Ceci est un essai de la synthèse vocale"},
    {LanguageLabel, "Langue"},
    {Red, "Rouge"},
    {Green, "Vert"},
    {Blue, "Bleu"},
    {ColourShown, "La couleur telle qu’elle est réglée"},
    {TextToSpeak, "Texte à lire"},
    {UndoDefaults, "Rétablit tous les choix par défaut. Ctrl+Z annule cette action."},
    {DesktopComment, "Calendrier illustré et agenda personnel"},
    {StartEntryFailed, "L’entrée de démarrage automatique n’a pas pu être écrite."},
    {CopyKeptIn, "Une copie de votre ancien agenda est conservée dans le dossier %1"},

    {LanguageEditor, "Éditeur de langues"},
    {LanguageName, "Nom de la langue"},
    {MonthsAndMenu, "Mois et leurs entrées de menu"},
    {DaysOfTheWeek, "Jours de la semaine"},
    {TextsOfWindows, "Textes"},
    {EnglishText, "Anglais : %1"},
    {NameTheLanguage, "Donnez un nom à la langue avant de l’enregistrer."},
    {ReplaceLanguage, "Il existe déjà une langue nommée %1. La remplacer ?"},
    {Replace, "Remplacer"},
    {SameItems, "Deux éléments d’une même liste ont le même texte ; on ne pourrait pas distinguer "
                "un choix de l’autre : %1"},
    {LanguageNotSaved, "La langue n’a pas pu être enregistrée."},
    {LanguageUnsaved, "Les modifications de cette langue n’ont pas été enregistrées."},

    {StartHidden, "Attendre masqué"},
    {StartHiddenTip, "Le calendrier attend sans s’afficher jusqu’à l’échéance d’un rappel ou "
                     "jusqu’à ce que vous le lanciez."},
    {OtherYear, "Cet agenda appartient à l’année %1. Il pourra être affiché quand le programme de "
                "son propriétaire l’aura amené à cette année."},

    {MenuGame, "&Jeu"},
    {MenuGameStart, "&Taquin"},
    {MenuGameJigSaw, "&Puzzle"},
    {MenuGameSize, "&Nombre de pièces"},
    {MenuGamePicture, "&Changer d’image"},
    {MenuGameQuit, "Abandonner le je&u"},
    {PuzzleName, "Puzzle"},
    {PuzzleMoves, "Coups : %1"},
    {PuzzleTime, "Temps : %1"},
    {PuzzleSolved, "Terminé !"},
    {JigSawKeys, "Faites glisser une pièce sur une autre. Touches : flèches, Espace pour prendre "
                 "et poser, H montre l’image."},
    {MovingKeys, "Cliquez sur une pièce voisine du trou. Touches : flèches, H montre l’image."},
    {PictureFilter, "Images|*.jpg;*.bmp;*.gif;*.wmf;*.emf;*.ico"},
    {PuzzleUnsuitable, "Cette image ne convient pas à un puzzle"},
    {MenuHalfScreen, "&Demi-écran"},
    {MenuMedia, "&Lire un fichier..."},
    {MenuSavePicture, "&Enregistrer l'image..."},
    {MenuMonthPicture, "&Changer l'image du mois..."},
    {MediaPrevious, "En arrière"},
    {MediaNext, "En avant"},
    {MediaPlay, "Lecture"},
    {MediaPause, "Pause"},
    {MediaStop, "Arrêt"},
    {MediaEject, "Éjecter"},
    {MediaPosition, "Position"},
    {CdPlayer, "Lecteur de CD"},
    {MediaGone, "Le fichier « %1 » d'un rappel n'existe plus."},
    {MediaFailed, "Impossible de lire le fichier « %1 »."},
    {CdMissing, "Il n'y a pas de CD audio dans le lecteur."},
    {CdFailed, "Impossible de lire le CD."},
    {BitmapFilter, "Image (*.bmp)|*.bmp"},
    {PictureNotSaved, "Impossible d'enregistrer l'image."},
    {PictureNotReplaced, "Impossible de remplacer l'image."},
    {NotAPicture, "Le fichier « %1 » n'est pas une image affichable."},
};
static_assert(IsWhole(kRows));

} // namespace

ProgramTextColumn FrenchTexts() {
    return kRows;
}

} // namespace kestrova
